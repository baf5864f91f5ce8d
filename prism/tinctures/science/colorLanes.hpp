/// Colours of which all four components are computed at once.
#pragma once

#include <bit>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "host/colormap/rgba_float_t.hpp"
#include "prism/tinctures/science/lanes.hpp"

namespace prism {

/// Red, green, blue and alpha as four lanes.
[[gnu::always_inline]] inline Quad lanesOf(Tessar::rgba_float_t const& color) noexcept {
    return load<Quad>(&color[0]);
}

[[gnu::always_inline]] inline Tessar::rgba_float_t colorOf(Quad lanes) noexcept {
    Tessar::rgba_float_t color;
    store(&color[0], lanes);
    return color;
}

/// Four doubles, one for each component.
struct WideColor {
    Pair redGreen, blueAlpha;
};

/// Floats as doubles. The compiler by itself takes a vector apart for this.
[[gnu::always_inline]] inline WideColor widened(Quad color) noexcept {
#if defined(__SSE2__)
    return {_mm_cvtps_pd(color), _mm_cvtps_pd(_mm_movehl_ps(color, color))};
#else
    return {{color[0], color[1]}, {color[2], color[3]}};
#endif
}

/// Each rounded to float.
[[gnu::always_inline]] inline Quad narrowed(WideColor const& color) noexcept {
    auto const& [redGreen, blueAlpha] = color;
#if defined(__SSE2__)
    return _mm_movelh_ps(_mm_cvtpd_ps(redGreen), _mm_cvtpd_ps(blueAlpha));
#else
    auto const rounded = [](double number) { return static_cast<float>(number); };
    return {rounded(redGreen[0]), rounded(redGreen[1]), rounded(blueAlpha[0]),
            rounded(blueAlpha[1])};
#endif
}

/// A colour with a weight: products of doubles, rounded to float.
[[gnu::always_inline]] inline Quad weighted(Quad color, double weight) noexcept {
    WideColor const wide = widened(color);
    return narrowed({wide.redGreen * weight, wide.blueAlpha * weight});
}

/// The colour of the one with the alpha of the other.
[[gnu::always_inline]] inline Quad withAlphaOf(Quad color, Quad alpha) noexcept {
    using Bits [[gnu::vector_size(16)]] = std::int32_t;
    constexpr Bits kept{-1, -1, -1, 0};
    return std::bit_cast<Quad>((std::bit_cast<Bits>(color) & kept) |
                               (std::bit_cast<Bits>(alpha) & ~kept));
}

}  // namespace prism
