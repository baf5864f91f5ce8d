/// A map taken to pieces, by lookups alone.
#pragma once

#include <optional>

#include "workbench/export/Model.hpp"

namespace workbench {

/// How a map is to be taken to pieces.
struct Sampling {
    std::optional<Interval> range = {};  ///< the values at the ends, instead of the map's own
    double error = 0.5 / 255;            ///< how far components, as a screen shows them, may be off
    bool alpha = false;                  ///< keep alpha
    bool beyond = false;                 ///< keep components outside 0 to 1
    bool steps = false;                  ///< pieces of one colour only
};

/// The least and the greatest error that can be asked for.
constexpr Interval Errors{0.0001, 0.25};

/// The pieces of a map, without an origin. Edges are found to the last double, by
/// bisection. Lines are divided until they stay within the error at every scalar
/// tried. A map whose colours all stand side by side unblended has pieces of one
/// colour alone, and each of them exactly.
///
/// Throws `WorkError` for a map that needs more than `MaxPieces` or changes too
/// often to be followed.
Model modelOf(Orlo::Colormap const& map, Sampling const& sampling);

constexpr std::size_t MaxPieces = 10'000;

/// The colour as a screen shows it: components from 0 to 1; NaN is 0.
Orlo::rgba_float_t shown(Orlo::rgba_float_t const& color) noexcept;

/// The greatest difference of two colours in a component, as a screen shows them.
double shownDifference(Orlo::rgba_float_t const& a, Orlo::rgba_float_t const& b) noexcept;

}  // namespace workbench
