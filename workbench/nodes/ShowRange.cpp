/// Shows a range as a ruler.
#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/Bundle.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/nodes/values.hpp"
#include "workbench/scene/Ruler.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// "position" is the lower left corner of the ruler and "width" its length:
/// fractions of the picture's. Without a connected "range" it shows 0 to 1.
class ShowRange : public Node {
public:
    using Node::Node;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        Range range;
        RulerStyle style;
        range_.read(pool, range);
        color_.read(pool, style.color);
        position_.read(pool, style.position);
        width_.read(pool, style.width);
        renderable_.publish(pool,
                            std::make_shared<Ruler>(Interval{range.minimum, range.maximum}, style));
        return true;
    }

private:
    TypedSlot<Range> range_{this, "range", Range(0, 1), 0};
    Input<ChartPtr> chart_{this, "chart"};
    TypedSlot<Pair> position_{this, "position", RulerStyle().position, 0};
    TypedSlot<double> width_{this, "width", RulerStyle().width, 0};
    TypedSlot<Tessar::rgba_float_t> color_{this, "color", RulerStyle().color, 0};
    Output<RenderablePtr> renderable_{this, "renderable"};
};

}  // namespace

Entry showRangeEntry() {
    return makeEntry<ShowRange>("Legend", "ShowRange", "A ruler that shows a range of values.");
}

}  // namespace workbench
