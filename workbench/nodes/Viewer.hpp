/// What pictures are made of.
#pragma once

#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/Keeper.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/scene/Renderable.hpp"

namespace workbench {

/// What a viewer shows at one time.
struct Shown {
    Pair size{1046, 650};  ///< pixels
    Tessar::rgba_float_t background;
    View view;
    ScenePtr scene;  ///< may be empty
};

/// Looks at the scene at "scene" as the camera at "camera" says; without a
/// scene it sees its background, without a camera it looks as a new one.
class Viewer : public HostObject {
public:
    explicit Viewer(std::string const& name);

    /// What it shows with the values of the pool, once it was requested there.
    /// [updater]
    Shown shown(Orlo::PoolPtr const& pool) const;

private:
    Input<ScenePtr> scene_{this, "scene"};
    Input<ViewPtr> camera_{this, "camera"};
    Orlo::TypedSlot<Tessar::rgba_float_t> backgroundcolor_{
        this, "backgroundcolor", Tessar::rgba_float_t(0.04F, 0.05F, 0.07F, 1.0F), 0};
    Orlo::TypedSlot<Pair> size_{this, "size", Shown().size, 0};
};

}  // namespace workbench
