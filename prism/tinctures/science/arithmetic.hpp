/// The arithmetic that the formula maps share.
#pragma once

#include "prism/tinctures/science/colorLanes.hpp"

namespace prism {

/// Clamps to 0..1. The maximum comes first and takes NaN as well, so that
/// NaN becomes 1.
constexpr double clamped(double x) noexcept {
    double const belowMax = x < 1.0 ? x : 1.0;
    return belowMax > 0.0 ? belowMax : 0.0;
}

/// The sum of two weighted colours, alpha included. Both products are floats
/// before they are added; nothing is clamped.
[[gnu::always_inline]] inline Tessar::rgba_float_t blend(Tessar::rgba_float_t const& first,
                                                         double firstWeight,
                                                         Tessar::rgba_float_t const& second,
                                                         double secondWeight) noexcept {
    return colorOf(weighted(lanesOf(first), firstWeight) + weighted(lanesOf(second), secondWeight));
}

/// The weights of a gradient that can bend from its end colour towards the
/// complement of its start colour.
struct BendWeights {
    double start;
    double end;
    double complement;
};

/// The colour at one position of such a gradient. The terms are floats before they
/// are added. The complement counts as opaque, and alpha adds the term of the start
/// colour first, not that of the end colour.
[[gnu::always_inline]] inline Tessar::rgba_float_t bend(Tessar::rgba_float_t const& start,
                                                        Tessar::rgba_float_t const& end,
                                                        BendWeights const& weights) noexcept {
    Quad const opaque{1, 1, 1, 1}, transparent{};
    Quad const first = weighted(lanesOf(start), weights.start);
    Quad const last = weighted(lanesOf(end), weights.end);
    Quad const complement =
        weighted(opaque - withAlphaOf(lanesOf(start), transparent), weights.complement);
    return colorOf(withAlphaOf(complement + last + first, complement + first + last));
}

}  // namespace prism
