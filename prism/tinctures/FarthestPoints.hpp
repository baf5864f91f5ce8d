/// The choice of colours that are far apart.
#pragma once

#include <cstddef>
#include <vector>

#include "prism/tinctures/LabColor.hpp"

namespace prism {

/// Picks `count` of the candidates, one after the other, by their indices: each
/// time the candidate whose nearest background or earlier pick is the farthest
/// away; of equal ones the first. Once every candidate coincides with a taken
/// colour, the last pick is repeated.
///
/// The candidates' `nearest` is the start of the search. A point of NaNs is near
/// to nothing. Without candidates there are no picks. Threads: any.
std::vector<std::size_t> farthestPoints(std::vector<LabPoint> candidates,
                                        std::vector<LabPoint> const& backgrounds,
                                        std::size_t count);

}  // namespace prism
