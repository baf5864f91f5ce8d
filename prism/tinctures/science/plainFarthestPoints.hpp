/// The selection of distinct colours in its plain form, as the reference.
#pragma once

#include <cstddef>
#include <vector>

#include "prism/tinctures/science/LabGrid.hpp"

namespace prism {

/// All points of the grid, red varying slowest.
std::vector<RgbTriple> plainGrid(RgbGrid const& grid);

/// What the picks of `FarthestPoints` must equal, by a full pass for every colour.
/// Once every candidate coincides with a taken colour, the last pick is repeated.
std::vector<std::size_t> plainFarthestPoints(std::vector<LabPoint> candidates,
                                             std::vector<LabPoint> const& backgrounds,
                                             std::size_t count);

}  // namespace prism
