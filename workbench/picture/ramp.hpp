/// The colours of a map over its range, and a picture of them.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "host/colormap/Colormap.hpp"
#include "workbench/common/Interval.hpp"
#include "workbench/picture/Image.hpp"

namespace workbench {

/// Evenly spaced lookups, each at the middle of its column, left to right.
struct Samples {
    Interval domain;  ///< the first column begins at its min, the last one ends at its max
    std::vector<Orlo::rgba_float_t> colors;  ///< at least one
};

/// Looks `count` colours up.
Samples sample(Orlo::Colormap const& map, std::size_t count);

/// A picture with a column for each sample, in its colour or in what `changed`
/// makes of it.
Image rampOf(Samples const& samples, int height,
             std::function<Orlo::rgba_float_t(Orlo::rgba_float_t const&)> const& changed = {});

}  // namespace workbench
