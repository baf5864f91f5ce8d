#include "workbench/picture/Image.hpp"

#include <algorithm>
#include <stdexcept>

#include "workbench/common/clamp.hpp"

namespace workbench {

namespace {

std::size_t pixelCount(int width, int height) {
    if (width < 1 || height < 1 || width > Image::MaxPixelsASide || height > Image::MaxPixelsASide)
        throw std::invalid_argument("a picture has 1 to 16384 pixels a side");
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

std::uint8_t quantised(float component) {
    return static_cast<std::uint8_t>(clampToUnit(component) * 255.0 + 0.5);
}

}  // namespace

Rgba8 opaque(Tessar::rgba_float_t const& color) {
    return {quantised(color[0]), quantised(color[1]), quantised(color[2]), 255};
}

Image::Image(int width, int height, Rgba8 fill)
    : width_(width), height_(height), pixels_(pixelCount(width, height), fill) {}

void Image::fill(int left, int top, int width, int height, Rgba8 color) {
    // 64 bits, as the far edge of a large rectangle may exceed an int
    auto const edge = [](int start, int length, int max) {
        return static_cast<int>(std::clamp<std::int64_t>(std::int64_t{start} + length, 0, max));
    };
    int const right = edge(left, width, width_);
    int const bottom = edge(top, height, height_);
    for (int y = std::max(top, 0); y < bottom; ++y)
        for (int x = std::max(left, 0); x < right; ++x)
            at(x, y) = color;
}

}  // namespace workbench
