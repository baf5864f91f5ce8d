/// Shows a range as a ruler.
#include <algorithm>
#include <cmath>
#include <cstdint>

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

struct RulerStyle {
    Tessar::rgba_float_t color{1.0F, 1.0F, 1.0F, 1.0F};
    Pair position{0.05, 0.025};
    double width = 0.9;
};

/// A horizontal ruler: labels at the bottom, the line above them, and on it the
/// marks. Nothing is drawn of a range that is not finite.
class Ruler : public Renderable {
public:
    Ruler(Range const& range, RulerStyle const& style) : range_(range), style_(style) {}

    void drawOver(Image& image) const override {
        int const scale = textScale(image);
        PixelRect const box = placed(style_.position, style_.width, 0.0, image);
        if (box.width < 1 || !std::isfinite(range_.minimum) || !std::isfinite(range_.maximum))
            return;
        int const line = box.bottom() - textHeight(scale) - 2 * scale;
        Rgba8 const colour = opaque(style_.color);
        image.fill(box.left, line, box.width + scale, scale, colour);
        int const parts = labelParts(box.width, scale);
        for (int i = 0; i <= MinorMarks * parts; ++i) {
            int const height = (i % MinorMarks == 0 ? 8 : 4) * scale;
            image.fill(box.left + offset(box.width, i, MinorMarks * parts), line - height, scale,
                       height, colour);
        }
        for (int i = 0; i <= parts; ++i) {
            std::string const text = label(i, parts);
            int const middle = box.left + offset(box.width, i, parts);
            drawText(image, middle - textWidth(text, scale) / 2, line + 3 * scale, text, colour,
                     scale);
        }
    }

private:
    static constexpr int MinorMarks = 5;  ///< marks for each label

    static int offset(int width, int i, int parts) {
        return static_cast<int>(std::int64_t{width} * i / parts);
    }

    std::string label(int i, int parts) const {
        return labelText(markValue(range_.minimum, range_.maximum, i, parts));
    }

    /// Into how many parts the labels divide the ruler, so that they stay apart.
    int labelParts(int width, int scale) const {
        for (int const parts : {10, 5, 2}) {
            int widest = 0;
            for (int i = 0; i <= parts; ++i)
                widest = std::max(widest, textWidth(label(i, parts), scale));
            if (width / parts > widest * 3 / 2)
                return parts;
        }
        return 1;
    }

    Range range_;
    RulerStyle style_;
};

/// "position" is the lower left corner of the ruler and "width" its length:
/// fractions of the picture's. Without a connected "range" it shows 0 to 1.
class ShowRange : public SceneObject {
public:
    using SceneObject::SceneObject;

    bool update(VRequest& request, double) override {
        PoolPtr const& pool = request.pool();
        Range range;
        RulerStyle style;
        range_.read(pool, range);
        color_.read(pool, style.color);
        position_.read(pool, style.position);
        width_.read(pool, style.width);
        renderable_.publish(pool, std::make_shared<Ruler>(range, style));
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
