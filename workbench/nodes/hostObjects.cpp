#include "workbench/nodes/hostObjects.hpp"

#include <algorithm>
#include <mutex>
#include <string_view>
#include <vector>

#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Viewer.hpp"
#include "workbench/nodes/kinds.hpp"

namespace workbench {

namespace {

bool isViewerName(std::string_view name) {
    constexpr std::string_view Start = "Viewer";
    return name.starts_with(Start) && name.size() > Start.size() &&
           name.find_first_not_of("0123456789", Start.size()) == std::string_view::npos;
}

bool isCamera(std::string const& kind, std::string const& name) {
    return kind == "CameraControl" || (kind.empty() && name == "Camera");
}

Orlo::ObjectPtr makeObject(std::string const& kind, std::string const& name) {
    if (isCamera(kind, name))
        return makeCamera(name);
    if (isViewerName(name))
        return makeViewer(name);
    if (name.ends_with("Scene"))
        return makeScene(name);
    if (name == "ChartSelector")
        return makeChartSelector(name);
    return new Placeholder(name);
}

/// The viewers and cameras that stand, by context, so that each can find the
/// others when it comes.
class Sights {
public:
    void enterViewer(Nucleo::Intercube const& context, Orlo::ObjectPtr const& viewer) {
        std::scoped_lock const lock(mutex_);
        dropTheDead();
        for (Sight const& each : sights_)
            if (each.context == &context && !isViewer(*each.object))
                look(viewer, each.object);
        sights_.push_back({&context, viewer});
    }

    void enterCamera(Nucleo::Intercube const& context, Orlo::ObjectPtr const& camera) {
        std::scoped_lock const lock(mutex_);
        dropTheDead();
        for (Sight const& each : sights_)
            if (each.context == &context && isViewer(*each.object))
                look(each.object, camera);
        sights_.push_back({&context, camera});
    }

private:
    struct Sight {
        Nucleo::Intercube const* context;
        Orlo::WeakObjectPtr object;
    };

    void dropTheDead() {
        std::erase_if(sights_, [](Sight const& each) { return !each.object; });
    }

    /// Leaves a viewer alone that looks through a camera already.
    static void look(Orlo::ObjectPtr const& viewer, Orlo::ObjectPtr const& camera) {
        Orlo::SlotPtr const input = viewer->slot("camera");
        if (!input->provider())
            viewer->connectSlots(input, *camera, camera->slot("::view"));
    }

    std::mutex mutex_;
    std::vector<Sight> sights_;
};

Sights& sights() {
    static Sights instance;
    return instance;
}

}  // namespace

Orlo::ObjectPtr makeHostObject(std::string const& kind, std::string const& name,
                               Nucleo::Intercube const& context) {
    Orlo::ObjectPtr const object = makeObject(kind, name);
    if (isViewer(*object))
        sights().enterViewer(context, object);
    else if (isCamera(kind, name))
        sights().enterCamera(context, object);
    return object;
}

}  // namespace workbench
