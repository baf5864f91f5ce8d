/// The camera as an object.
#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/nodes/values.hpp"
#include "workbench/scene/View.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// Provides the view of each viewer, as a script sets it. The parameters, in
/// their order:
///
/// | name       | text, by default | meaning                                          |
/// |------------|------------------|--------------------------------------------------|
/// | "observer" | `{0,2.4,1}`      | where the camera stands                          |
/// | "lookat"   | `{0,0,0}`        | the point in the middle of the picture           |
/// | "up"       | `{0,1,0}`        | the direction that is upward in the picture      |
/// | "zoom"     | `45`             | vertical angle of view in degrees, 0.001 to 170; |
/// |            |                  | smaller is closer                                |
/// | "near"     | `0.02`           | least depth that is shown                        |
/// | "far"      | `100`            | greatest depth that is shown                     |
/// | "options"  | ` -Orthographic` | parallel rays; "lookat" is seen at the same size |
/// | "time"     | `0[0,1]@0.1`     | for others; no picture depends on it             |
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
        near_.read(pool, view.minDepth);
        far_.read(pool, view.maxDepth);
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
    TypedSlot<double> near_{this, "near", View().minDepth, 0};
    TypedSlot<double> far_{this, "far", View().maxDepth, 0};
    TypedSlot<FlagList> options_{this, "options", FlagList(" -Orthographic", ' '), 0};
    TypedSlot<VTime> time_{this, "time", VTime(0, 0, 1, 0.1, "", "", ""), 0};
    Output<ViewPtr> view_{this, "::view"};
};

}  // namespace

ObjectPtr makeCamera(std::string const& name) {
    return new Camera(name);
}

}  // namespace workbench
