#include "workbench/scene/LegendBar.hpp"

#include <algorithm>

#include "workbench/picture/domain.hpp"
#include "workbench/picture/text.hpp"
#include "workbench/scene/layout.hpp"

namespace workbench {

namespace {

/// The scalar in the middle of a row of pixels.
double scalarAt(PixelRect const& bar, int y, Orlo::Colormap const& map) {
    return domainOf(map).at((bar.bottom() - y - 0.5) / bar.height);
}

void drawColors(Image& image, PixelRect const& bar, Orlo::Colormap const& map) {
    int const end = std::min(bar.bottom(), image.height());
    for (int y = std::max(bar.top, 0); y < end; ++y)
        image.fill(bar.left, y, bar.width, 1, opaque(map.getColor(scalarAt(bar, y, map))));
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

LegendBar::LegendBar(Orlo::ColormapPtr const& map, LegendStyle const& style,
                     std::optional<Interval> const& labels)
    : map_(map), style_(style), labels_(labels) {}

void LegendBar::drawOver(Image& image) const {
    PixelRect const bar = pixelRect(style_.position, style_.width, style_.height, image);
    if (bar.width < 1 || bar.height < 1)
        return;
    Rgba8 const border = opaque(style_.bordercolor);
    if (map_) {
        drawLabels(image, bar, labels_.value_or(domainOf(*map_)), border);
        drawColors(image, bar, *map_);
    }
    drawFrame(image, bar, textScale(image), border);  // over the seams of the marks
}

std::optional<Reading> LegendBar::readOver(Image const& image, int x, int y) const {
    PixelRect const bar = pixelRect(style_.position, style_.width, style_.height, image);
    if (!map_ || x < bar.left || x >= bar.right() || y < bar.top || y >= bar.bottom())
        return std::nullopt;
    return Reading{std::nullopt, scalarAt(bar, y, *map_), map_};
}

Image legendPicture(Orlo::ColormapPtr const& map, Interval const& range) {
    constexpr int Width = 180;
    constexpr int Height = 640;
    Image image(Width, Height, {255, 255, 255, 255});
    LegendStyle const style{{0.0F, 0.0F, 0.0F, 1.0F}, {0.08, 0.03}, 0.94, 0.3};
    LegendBar(map, style, range).drawOver(image);
    return image;
}

std::string legendSvg(Orlo::Colormap const& map, Interval const& range) {
    constexpr int Top = 10, Left = 10, Width = 40, Height = 512, Parts = 10;
    auto const number = [](int value) { return std::to_string(value); };
    auto const rect = [&](int y, int height, std::string const& style) {
        return "<rect x=\"" + number(Left) + "\" y=\"" + number(y) + "\" width=\"" + number(Width) +
               "\" height=\"" + number(height) + "\" " + style + "/>\n";
    };
    std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"180\" height=\"532\" "
        "viewBox=\"0 0 180 532\" font-family=\"sans-serif\" font-size=\"14\">\n"
        "<g shape-rendering=\"crispEdges\">\n";
    Interval const domain = domainOf(map);
    auto const fillAt = [&](int row) {
        Rgba8 const color = opaque(map.getColor(domain.at(Height - row - 0.5, Height)));
        return "fill=\"rgb(" + number(color[0]) + "," + number(color[1]) + "," + number(color[2]) +
               ")\"";
    };
    for (int row = 0, end = 0; row < Height; row = end) {  // rows of one colour are one
        std::string const fill = fillAt(row);
        for (end = row + 1; end < Height && fillAt(end) == fill;)
            ++end;
        svg += rect(Top + row, end - row, fill);
    }
    svg += "</g>\n" + rect(Top, Height, "fill=\"none\" stroke=\"black\"");
    for (int i = 0; i <= Parts; ++i) {
        std::string const y = number(Top + Height - Height * i / Parts);
        svg += "<path d=\"M" + number(Left + Width) + " " + y + "h6\" stroke=\"black\"/>" +
               "<text x=\"" + number(Left + Width + 10) + "\" y=\"" + y + "\" dy=\"0.35em\">" +
               labelText(markValue(range.min, range.max, i, Parts)) + "</text>\n";
    }
    return svg + "</svg>\n";
}

}  // namespace workbench
