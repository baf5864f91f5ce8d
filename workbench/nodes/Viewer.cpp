#include "workbench/nodes/Viewer.hpp"

#include "workbench/common/errors.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/session/objects.hpp"

namespace workbench {

namespace {

/// Whether a picture can have so many pixels a side.
bool isSide(double pixels) {
    return pixels >= 1 && pixels <= Image::MaxPixelsASide;
}

}  // namespace

Viewer::Viewer(std::string const& name) : HostObject(name) {
    makePresence();
}

bool Viewer::update(Orlo::VRequest& request, double) {
    setFault(scene_.read(request.pool()) ? Fault() : Fault{"scene", "there is no scene to show"});
    return true;
}

Shown Viewer::shown(Orlo::PoolPtr const& pool) const {
    Shown shown;
    Pair size{1.0 * shown.width, 1.0 * shown.height};
    size_.read(pool, size);
    if (!isSide(size.first) || !isSide(size.second))
        throw WorkError("the size of '" + Name() + "' is " + Orlo::VValueTrait<Pair>::Text(size) +
                        "; a picture has 1 to " + std::to_string(Image::MaxPixelsASide) +
                        " pixels a side, such as 1046x650");
    shown.width = static_cast<int>(size.first);
    shown.height = static_cast<int>(size.second);
    background_.read(pool, shown.background);
    shown.scene = scene_.read(pool);
    if (ViewPtr const view = camera_.read(pool))
        shown.view = *view;
    return shown;
}

bool isViewer(Orlo::VObject const& object) {
    return dynamic_cast<Viewer const*>(&object) != nullptr;
}

Image render(Orlo::VObject& object, Orlo::PoolPtr const& pool,
             std::function<void(double)> const& progress) {
    auto* const viewer = dynamic_cast<Viewer*>(&object);
    if (viewer == nullptr)
        throw CallError("'" + object.Name() + "' is no viewer; only viewers make pictures");
    request(*viewer, pool);
    return render(viewer->shown(pool), progress);
}

Orlo::ObjectPtr makeViewer(std::string const& name) {
    return new Viewer(name);
}

}  // namespace workbench
