/// The scene as an object.
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/scene/Renderable.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// Shows what is connected to its inputs "<member>.renderable", in the order in
/// which these were made.
class SceneOfMembers : public HostObject {
public:
    using HostObject::HostObject;

    SlotPtr makeInput(std::string const& name) override {
        if (!name.ends_with(".renderable"))
            return HostObject::makeInput(name);
        return members_.emplace_back(this, name).slot();
    }

    bool update(VRequest& request, double) override {
        auto const scene = std::make_shared<Scene>();
        for (Input<RenderablePtr> const& member : members_)
            if (RenderablePtr const shown = member.read(request.pool()))
                scene->members.push_back(shown);
        scene_.publish(request.pool(), scene);
        return true;
    }

private:
    std::vector<Input<RenderablePtr>> members_;
    Output<ScenePtr> scene_{this, "::scene"};
};

}  // namespace

ObjectPtr makeScene(std::string const& name) {
    return new SceneOfMembers(name);
}

}  // namespace workbench
