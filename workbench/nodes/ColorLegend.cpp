/// Shows a colour map as a bar.
#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/Bundle.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/nodes/values.hpp"
#include "workbench/scene/LegendBar.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// "position" is the lower left corner of the bar, "height" and "width" its
/// size: fractions of the picture's. "bordercolor" is also that of the labels.
/// Without a map only the frame is shown, which is a fault.
class ColorLegend : public Node {
public:
    using Node::Node;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        LegendStyle style;
        bordercolor_.read(pool, style.bordercolor);
        position_.read(pool, style.position);
        height_.read(pool, style.height);
        width_.read(pool, style.width);
        ColormapPtr const map = colormap_.read(pool);
        setFault(map ? Fault() : Fault{"colormap", "there is no colour map to show"});
        renderable_.publish(pool, std::make_shared<LegendBar>(map, style));
        return true;
    }

private:
    Input<ColormapPtr> colormap_{this, "colormap"};
    Input<ChartPtr> chart_{this, "chart"};
    TypedSlot<Tessar::rgba_float_t> bordercolor_{this, "bordercolor", LegendStyle().bordercolor, 0};
    TypedSlot<Pair> position_{this, "position", LegendStyle().position, 0};
    TypedSlot<double> height_{this, "height", LegendStyle().height, 0};
    TypedSlot<double> width_{this, "width", LegendStyle().width, 0};
    Output<RenderablePtr> renderable_{this, "renderable"};
};

}  // namespace

Entry colorLegendEntry() {
    return makeEntry<ColorLegend>("Legend", "ColorLegend", "A bar that shows a colour map.");
}

}  // namespace workbench
