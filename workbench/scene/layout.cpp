#include "workbench/scene/layout.hpp"

#include <charconv>
#include <cmath>

#include "workbench/picture/text.hpp"

namespace workbench {

namespace {

/// A fraction of a length in whole pixels; what is no number counts as 0, and
/// all is kept far inside the range of an integer.
int pixels(double fraction, int length) {
    constexpr double Max = 1 << 20;
    double const exact = std::floor(fraction * length + 0.5);
    return static_cast<int>(exact >= Max ? Max : exact <= -Max ? -Max : exact == exact ? exact : 0);
}

/// Black or white, whichever is less like the colour.
Rgba8 seamOf(Rgba8 color) {
    int const luma = 299 * color[0] + 587 * color[1] + 114 * color[2];  // of 255,000
    return luma >= 127'500 ? Rgba8{0, 0, 0, 255} : Rgba8{255, 255, 255, 255};
}

}  // namespace

PixelRect pixelRect(Pair const& position, double width, double height, Image const& image) {
    PixelRect rect;
    rect.left = pixels(position.first, image.width());
    rect.width = pixels(width, image.width());
    rect.height = pixels(height, image.height());
    rect.top = image.height() - pixels(position.second, image.height()) - rect.height;
    return rect;
}

int textScale(Image const& image) {
    constexpr int HeightForEachDot = 320;
    return std::max(1, image.height() / HeightForEachDot);
}

std::string labelText(double value) {
    char digits[32];
    auto const [end, error] =
        std::to_chars(digits, digits + sizeof digits, value + 0.0, std::chars_format::general, 6);
    return error == std::errc() ? std::string(digits, end) : std::string();
}

double markValue(double min, double max, int i, int parts) {
    return (min * (parts - i) + max * i) / parts;
}

void drawLabel(Image& image, int x, int y, std::string const& text, Rgba8 color, int scale) {
    for (int const right : {-scale, 0, scale})
        for (int const down : {-scale, 0, scale})
            drawText(image, x + right, y + down, text, seamOf(color), scale);
    drawText(image, x, y, text, color, scale);
}

void drawMarks(Image& image, std::vector<PixelRect> const& marks, Rgba8 color, int scale) {
    for (PixelRect const& mark : marks)
        image.fill(mark.left - scale, mark.top - scale, mark.width + 2 * scale,
                   mark.height + 2 * scale, seamOf(color));
    for (PixelRect const& mark : marks)
        image.fill(mark.left, mark.top, mark.width, mark.height, color);
}

void drawFrame(Image& image, PixelRect const& inner, int thickness, Rgba8 color) {
    int const width = inner.width + 2 * thickness;
    image.fill(inner.left - thickness, inner.top - thickness, width, thickness, color);
    image.fill(inner.left - thickness, inner.bottom(), width, thickness, color);
    image.fill(inner.left - thickness, inner.top, thickness, inner.height, color);
    image.fill(inner.right(), inner.top, thickness, inner.height, color);
}

}  // namespace workbench
