/// Colours with integer components.
#pragma once

#include <cstddef>
#include <limits>

#include "host/colormap/rgba_float_t.hpp"

namespace Orlo {

/// A component as an integer: clamped to 0..1, NaN as 0, rounded to nearest.
template <class Integer>
Integer quantized(float component) {
    constexpr double max = std::numeric_limits<Integer>::max();
    double const clamped = component >= 1.0F ? 1.0 : component > 0.0F ? double{component} : 0.0;
    return static_cast<Integer>(clamped * max + 0.5);
}

/// As many components of a colour as the result has.
template <class Integers>
Integers quantizedColor(Tessar::rgba_float_t const& color) {
    Integers result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = quantized<typename Integers::value_type>(color[i]);
    return result;
}

}  // namespace Orlo
