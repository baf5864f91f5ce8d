/// The choice of colours that are far apart.
#pragma once

#include <cstddef>
#include <vector>

#include "prism/tinctures/LabColor.hpp"

namespace prism {

/// The points of a regular RGB grid with `steps` values a channel, 0 to 1.
///
/// Point `(i * steps + j) * steps + k` has red `i * h`, green `j * h` and blue
/// `k * h`, where h is the rounded `1 / (steps - 1)`: red varies slowest. The one
/// point of a grid of one step is NaN in all channels.
class RgbGrid {
public:
    explicit RgbGrid(int steps) : steps_(steps), h_(1.0 / (steps - 1)) {}

    int steps() const noexcept { return steps_; }
    /// The value of a channel at a step.
    double channel(int step) const noexcept { return step * h_; }
    RgbTriple operator[](std::size_t index) const noexcept;

private:
    int steps_;
    double h_;
};

/// Picks `count` points of the grid, one after the other, by their indices: each
/// time the point whose nearest background or earlier pick is the farthest away,
/// in Lab under the illuminant; of equal ones the first. Once every point
/// coincides with a taken colour, the last pick is repeated. A point of NaNs is
/// near to nothing. A grid without points gives no picks.
///
/// The result is that of one pass over all points for each colour, to the last
/// bit; most points are not looked at. Threads: any.
std::vector<std::size_t> farthestPoints(Orlo::Enum const& illuminant, RgbGrid const& grid,
                                        std::vector<LabPoint> const& backgrounds,
                                        std::size_t count);

}  // namespace prism
