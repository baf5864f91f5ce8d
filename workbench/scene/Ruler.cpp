#include "workbench/scene/Ruler.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "workbench/picture/text.hpp"
#include "workbench/scene/layout.hpp"

namespace workbench {

namespace {

constexpr int MinorMarks = 5;  ///< marks for each label

int offset(int width, int i, int parts) {
    return static_cast<int>(std::int64_t{width} * i / parts);
}

std::string label(Interval const& range, int i, int parts) {
    return labelText(markValue(range.min, range.max, i, parts));
}

/// Into how many parts the labels divide the ruler, so that they stay apart.
int labelParts(Interval const& range, int width, int scale) {
    for (int const parts : {10, 5, 2}) {
        int widest = 0;
        for (int i = 0; i <= parts; ++i)
            widest = std::max(widest, textWidth(label(range, i, parts), scale));
        if (width / parts > widest * 3 / 2)
            return parts;
    }
    return 1;
}

}  // namespace

Ruler::Ruler(Interval const& range, RulerStyle const& style) : range_(range), style_(style) {}

void Ruler::drawOver(Image& image) const {
    int const scale = textScale(image);
    PixelRect const box = pixelRect(style_.position, style_.width, 0.0, image);
    if (box.width < 1 || !std::isfinite(range_.min) || !std::isfinite(range_.max))
        return;
    int const line = box.bottom() - textHeight(scale) - 2 * scale;
    Rgba8 const color = opaque(style_.color);
    std::vector<PixelRect> marks{{box.left, line, box.width + scale, scale}};
    int const parts = labelParts(range_, box.width, scale);
    for (int i = 0; i <= MinorMarks * parts; ++i) {
        int const height = (i % MinorMarks == 0 ? 8 : 4) * scale;
        marks.push_back(
            {box.left + offset(box.width, i, MinorMarks * parts), line - height, scale, height});
    }
    drawMarks(image, marks, color, scale);
    for (int i = 0; i <= parts; ++i) {
        std::string const text = label(range_, i, parts);
        int const middle = box.left + offset(box.width, i, parts);
        drawLabel(image, middle - textWidth(text, scale) / 2, line + 3 * scale, text, color, scale);
    }
}

}  // namespace workbench
