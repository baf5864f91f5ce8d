/// Shows a colour map as a bar.
#include <algorithm>

#include "host/values/TypedSlot.hpp"
#include "workbench/nodes/Keeper.hpp"
#include "workbench/nodes/Port.hpp"
#include "workbench/nodes/kinds.hpp"
#include "workbench/picture/text.hpp"
#include "workbench/scene/Renderable.hpp"
#include "workbench/scene/ScalarField.hpp"
#include "workbench/scene/layout.hpp"

using namespace Orlo;

namespace workbench {

namespace {

/// How a legend looks; lengths are fractions of the picture's.
struct LegendStyle {
    Tessar::rgba_float_t bordercolor{1.0F, 1.0F, 1.0F, 1.0F};
    Pair position{0.03, 0.03};
    double height = 0.9;
    double width = 0.05;
};

/// The bar of a map, its least value at the bottom: each row of pixels is the
/// colour of the value at its middle. Without a map only the frame is drawn.
class LegendBar : public Renderable {
public:
    LegendBar(ColormapPtr const& map, LegendStyle const& style) : map_(map), style_(style) {}

    void drawOver(Image& image) const override {
        PixelRect const bar = placed(style_.position, style_.width, style_.height, image);
        if (bar.width < 1 || bar.height < 1)
            return;
        drawFrame(image, bar, textScale(image), opaque(style_.bordercolor));
        if (!map_)
            return;
        drawColours(image, bar);
        drawLabels(image, bar);
    }

private:
    void drawColours(Image& image, PixelRect const& bar) const {
        double const least = map_->getMin();
        double const span = map_->getMax() - least;
        int const end = std::min(bar.bottom(), image.height());
        for (int y = std::max(bar.top, 0); y < end; ++y) {
            double const part = (bar.bottom() - y - 0.5) / bar.height;
            image.fill(bar.left, y, bar.width, 1, opaque(map_->getColor(least + span * part)));
        }
    }

    /// On the right of the bar, or on its left where the right has no room.
    void drawLabels(Image& image, PixelRect const& bar) const {
        int const scale = textScale(image);
        int const parts = labelParts(bar.height, textHeight(scale));
        int const tick = 5 * scale;
        Rgba8 const colour = opaque(style_.bordercolor);
        int const room = image.width() - bar.right() - 3 * tick;
        for (int i = 0; i <= parts && parts > 0; ++i) {
            std::string const label =
                labelText(markValue(map_->getMin(), map_->getMax(), i, parts));
            int const width = textWidth(label, scale);
            int const y = bar.bottom() - bar.height * i / parts - scale / 2;
            bool const onRight = width <= room;
            image.fill(onRight ? bar.right() + scale : bar.left - scale - tick, y, tick, scale,
                       colour);
            drawText(image, onRight ? bar.right() + 2 * tick : bar.left - 2 * tick - width,
                     y - textHeight(scale) / 2 + 2 * scale, label, colour, scale);
        }
    }

    /// Into how many parts the labels divide the bar: as many as fit well; none
    /// if not even two labels do.
    static int labelParts(int height, int lineHeight) {
        for (int const parts : {10, 5, 2, 1})
            if (height >= parts * lineHeight * 3 / 2)
                return parts;
        return 0;
    }

    ColormapPtr map_;
    LegendStyle style_;
};

/// "position" is the lower left corner of the bar, "height" and "width" its
/// size: fractions of the picture's. "bordercolor" is also that of the labels.
class ColorLegend : public SceneObject {
public:
    using SceneObject::SceneObject;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        LegendStyle style;
        bordercolor_.read(pool, style.bordercolor);
        position_.read(pool, style.position);
        height_.read(pool, style.height);
        width_.read(pool, style.width);
        renderable_.publish(pool, std::make_shared<LegendBar>(colormap_.read(pool), style));
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
