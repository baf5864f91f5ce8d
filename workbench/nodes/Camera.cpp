/// The camera as an object.
#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/Keeper.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/scene/View.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// Provides the view of each viewer; see `View` for the parameters.
class Camera : public HostObject {
public:
    using HostObject::HostObject;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        View view;
        observer_.read(pool, view.observer);
        lookat_.read(pool, view.lookat);
        up_.read(pool, view.up);
        zoom_.read(pool, view.zoom);
        near_.read(pool, view.nearest);
        far_.read(pool, view.farthest);
        FlagList flags;
        options_.read(pool, flags);
        bool known = false;
        view.orthographic = flags("Orthographic", known);
        view_.publish(pool, std::make_shared<View>(view));
        return true;
    }

private:
    TypedSlot<Point> observer_{this, "observer", View().observer, 0};
    TypedSlot<Point> lookat_{this, "lookat", View().lookat, 0};
    TypedSlot<Point> up_{this, "up", View().up, 0};
    TypedSlot<double> zoom_{this, "zoom", View().zoom, 0};
    TypedSlot<double> near_{this, "near", View().nearest, 0};
    TypedSlot<double> far_{this, "far", View().farthest, 0};
    TypedSlot<FlagList> options_{this, "options", FlagList(" -Orthographic", ' '), 0};
    TypedSlot<VTime> time_{this, "time", VTime(0, 0, 1, 0.1, "", "", ""), 0};
    Output<ViewPtr> view_{this, "::view"};
};

}  // namespace

ObjectPtr makeCamera(std::string const& name) {
    return new Camera(name);
}

}  // namespace workbench
