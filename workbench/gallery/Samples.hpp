/// The colours of a map over its range.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "host/colormap/Colormap.hpp"
#include "workbench/picture/Image.hpp"

namespace workbench {

/// Evenly spaced lookups, each at the middle of its column, left to right.
struct Samples {
    double least;  ///< the range, which the first column begins and the last one ends
    double greatest;
    std::vector<Orlo::rgba_float_t> colours;  ///< at least one
};

/// Looks `count` colours up.
Samples sample(Orlo::Colormap const& map, std::size_t count);

/// A picture with a column for each sample, in its colour or in what `changed`
/// makes of it.
Image rampOf(Samples const& samples, int height,
             std::function<Orlo::rgba_float_t(Orlo::rgba_float_t const&)> const& changed = {});

/// The least and the greatest of some numbers.
struct Span {
    double least;
    double greatest;
    bool allFinite;  ///< false if any was left out for being no finite number
};

/// Of the red, green and blue components of all samples; 0 and 0 if none is finite.
Span componentSpan(Samples const& samples);
/// Of the lightness of all samples, as a screen shows them.
Span lightnessSpan(Samples const& samples);

}  // namespace workbench
