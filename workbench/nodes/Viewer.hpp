/// What makes pictures of a network.
#pragma once

#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/values.hpp"
#include "workbench/scene/render.hpp"

namespace workbench {

/// Looks at the scene at "scene" as the camera at "camera" says; without a
/// scene it sees its "background", which is a fault, without a camera it looks as
/// a new one. "size" is that of its picture in pixels.
class Viewer : public HostObject {
public:
    explicit Viewer(std::string const& name);

    bool update(Orlo::VRequest& request, double precision) override;

    /// What it shows with the values of the pool, once it was requested there.
    /// Throws `WorkError` if its size is none that a picture can have. [updater]
    Shown shown(Orlo::PoolPtr const& pool) const;

private:
    Input<ScenePtr> scene_{this, "scene"};
    Input<ViewPtr> camera_{this, "camera"};
    Orlo::TypedSlot<Pair> size_{this, "size", Pair{1.0 * Shown().width, 1.0 * Shown().height}, 0};
    Orlo::TypedSlot<Tessar::rgba_float_t> background_{
        this, "background", Tessar::rgba_float_t(0.04F, 0.05F, 0.07F, 1.0F), 0};
};

/// Whether the object is a viewer, of which `render` makes pictures. [any]
bool isViewer(Orlo::VObject const& object);

/// The picture that a viewer shows, of the viewer's "size", with the values
/// that hold in the pool. The viewer is requested first, and with it everything
/// that its scene shows, so that all is up to date.
///
/// `progress` hears how much is done, from 0 to 1. Throws `CallError` if the
/// object is no viewer, `WorkError` if its size is none that a picture can
/// have. The same network gives the same bytes on every system. [host]
Image render(Orlo::VObject& viewer, Orlo::PoolPtr const& pool,
             std::function<void(double)> const& progress = {});

}  // namespace workbench
