/// Pictures in memory.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/colormap/rgba_float_t.hpp"

namespace workbench {

/// Red, green, blue, alpha, each 0 to 255; alpha 255 is opaque.
using Rgba8 = std::array<std::uint8_t, 4>;

/// A colour as an opaque pixel: components clamped to 0..1, NaN as 0, rounded
/// to nearest. A picture ignores the alpha of colours, as the colours of tables
/// have none.
Rgba8 opaque(Tessar::rgba_float_t const& color);

/// A picture of `width` times `height` pixels, counted from the left and from
/// the top. Threads: as a plain value.
class Image {
public:
    /// Throws `std::invalid_argument` for a width or height below 1 or above
    /// `MaxPixelsASide`.
    Image(int width, int height, Rgba8 fill = {0, 0, 0, 255});

    static constexpr int MaxPixelsASide = 16384;

    int width() const noexcept { return width_; }
    int height() const noexcept { return height_; }

    /// The pixel at a place inside the picture.
    Rgba8& at(int x, int y) { return pixels_[index(x, y)]; }
    Rgba8 const& at(int x, int y) const { return pixels_[index(x, y)]; }

    bool contains(int x, int y) const noexcept {
        return x >= 0 && x < width_ && y >= 0 && y < height_;
    }

    /// Fills the part of a rectangle that lies in the picture.
    void fill(int left, int top, int width, int height, Rgba8 color);

    /// All pixels, row by row from the top, without gaps.
    std::vector<Rgba8> const& pixels() const noexcept { return pixels_; }

    friend bool operator==(Image const&, Image const&) = default;

private:
    std::size_t index(int x, int y) const noexcept {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }

    int width_;
    int height_;
    std::vector<Rgba8> pixels_;
};

}  // namespace workbench
