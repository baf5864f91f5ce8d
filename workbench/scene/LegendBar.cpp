#include "workbench/scene/LegendBar.hpp"

#include <algorithm>

#include "workbench/picture/domain.hpp"
#include "workbench/picture/text.hpp"
#include "workbench/scene/layout.hpp"

namespace workbench {

namespace {

void drawColors(Image& image, PixelRect const& bar, Orlo::Colormap const& map) {
    Interval const domain = domainOf(map);
    int const end = std::min(bar.bottom(), image.height());
    for (int y = std::max(bar.top, 0); y < end; ++y) {
        double const part = (bar.bottom() - y - 0.5) / bar.height;
        image.fill(bar.left, y, bar.width, 1, opaque(map.getColor(domain.at(part))));
    }
}

/// Into how many parts the labels divide the bar: as many as fit well; none if
/// not even two labels do.
int labelParts(int height, int lineHeight) {
    for (int const parts : {10, 5, 2, 1})
        if (height >= parts * lineHeight * 3 / 2)
            return parts;
    return 0;
}

/// On the right of the bar, or on its left where the right has no room.
void drawLabels(Image& image, PixelRect const& bar, Interval const& domain, Rgba8 color) {
    int const scale = textScale(image);
    int const parts = labelParts(bar.height, textHeight(scale));
    int const tick = 5 * scale;
    int const room = image.width() - bar.right() - 3 * tick;
    for (int i = 0; i <= parts && parts > 0; ++i) {
        std::string const label = labelText(markValue(domain.min, domain.max, i, parts));
        int const width = textWidth(label, scale);
        int const y = bar.bottom() - bar.height * i / parts - scale / 2;
        bool const onRight = width <= room;
        drawMarks(image,
                  {{onRight ? bar.right() + scale : bar.left - scale - tick, y, tick, scale}},
                  color, scale);
        drawLabel(image, onRight ? bar.right() + 2 * tick : bar.left - 2 * tick - width,
                  y - textHeight(scale) / 2 + 2 * scale, label, color, scale);
    }
}

}  // namespace

LegendBar::LegendBar(Orlo::ColormapPtr const& map, LegendStyle const& style)
    : map_(map), style_(style) {}

void LegendBar::drawOver(Image& image) const {
    PixelRect const bar = pixelRect(style_.position, style_.width, style_.height, image);
    if (bar.width < 1 || bar.height < 1)
        return;
    Rgba8 const border = opaque(style_.bordercolor);
    if (map_) {
        drawLabels(image, bar, domainOf(*map_), border);
        drawColors(image, bar, *map_);
    }
    drawFrame(image, bar, textScale(image), border);  // over the seams of the marks
}

}  // namespace workbench
