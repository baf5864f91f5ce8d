#include "workbench/nodes/Viewer.hpp"

#include "workbench/nodes/kinds.hpp"

namespace workbench {

Viewer::Viewer(std::string const& name) : HostObject(name) {
    makePresence();
}

Shown Viewer::shown(Orlo::PoolPtr const& pool) const {
    Shown shown;
    size_.read(pool, shown.size);
    backgroundcolor_.read(pool, shown.background);
    shown.scene = scene_.read(pool);
    if (ViewPtr const view = camera_.read(pool))
        shown.view = *view;
    return shown;
}

Orlo::ObjectPtr makeViewer(std::string const& name) {
    return new Viewer(name);
}

}  // namespace workbench
