/// Tables of colours that are as far apart as possible.
#pragma once

#include <cstddef>
#include <vector>

#include "host/colormap/rgba_float_t.hpp"
#include "host/values/Enum.hpp"

namespace prism {

/// What decides about a table.
struct DistinctRequest {
    int count;  ///< colours
    int steps;  ///< a channel, of the grid that the colours are of
    Orlo::Enum illuminant;
    Tessar::rgba_float_t background1, background2;  ///< to be far from, without alpha
};

/// How many of the colours have to be looked for: a grid has no more than its points.
///
/// Threads: any. Throws `std::length_error` for a negative number, and for what would
/// take too long or too much.
std::size_t picksOf(DistinctRequest const& request);

/// The colours in the order of picking: each one is as far as possible from the
/// backgrounds and from all before it. A grid without steps gives cleared colours.
///
/// Threads: any, without waiting. Throws as `picksOf` does, before it begins.
std::vector<Tessar::rgba_float_t> distinctColors(DistinctRequest const& request);

}  // namespace prism
