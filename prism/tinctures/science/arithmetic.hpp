/// The arithmetic that the formula maps share.
#pragma once

#include <cstddef>

#include "host/colormap/rgba_float_t.hpp"

namespace prism {

/// Clamps to 0..1. The maximum comes first and takes NaN as well, so that
/// NaN becomes 1.
constexpr double clamped(double x) noexcept {
    double const belowMax = x < 1.0 ? x : 1.0;
    return belowMax > 0.0 ? belowMax : 0.0;
}

/// A component with a weight: the product of doubles, rounded to float.
constexpr float weighted(float component, double weight) noexcept {
    return static_cast<float>(double{component} * weight);
}

/// The sum of two weighted colours, alpha included. Both products are floats
/// before they are added; nothing is clamped.
constexpr Tessar::rgba_float_t blend(Tessar::rgba_float_t const& first, double firstWeight,
                                     Tessar::rgba_float_t const& second,
                                     double secondWeight) noexcept {
    Tessar::rgba_float_t color;
    for (std::size_t i = 0; i < 4; ++i)
        color[i] = weighted(first[i], firstWeight) + weighted(second[i], secondWeight);
    return color;
}

/// The weights of a gradient that can bend from its end colour towards the
/// complement of its start colour.
struct BendWeights {
    double start;
    double end;
    double complement;
};

/// The colour at one position of such a gradient. The terms are floats before they
/// are added; the complement counts as opaque.
constexpr Tessar::rgba_float_t bend(Tessar::rgba_float_t const& start,
                                    Tessar::rgba_float_t const& end,
                                    BendWeights const& weights) noexcept {
    Tessar::rgba_float_t color;
    for (std::size_t i = 0; i < 3; ++i)
        color[i] = weighted(1.0F - start[i], weights.complement) + weighted(end[i], weights.end) +
                   weighted(start[i], weights.start);
    color[3] = static_cast<float>(weights.complement) + weighted(start[3], weights.start) +
               weighted(end[3], weights.end);
    return color;
}

}  // namespace prism
