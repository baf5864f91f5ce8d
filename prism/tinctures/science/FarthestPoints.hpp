/// The choice of colours that are far apart.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "prism/tinctures/science/LabColor.hpp"

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

/// The search for points of a grid that are far apart.
///
/// The picks are those of one pass over all points for each colour, to the last
/// bit, but most points are not looked at. Threads: any, one object each.
class FarthestPoints {
public:
    /// Converts the grid to Lab under the illuminant.
    FarthestPoints(Orlo::Enum const& illuminant, RgbGrid const& grid);
    FarthestPoints(FarthestPoints const& other);
    FarthestPoints& operator=(FarthestPoints const&) = delete;
    ~FarthestPoints();

    /// Picks `count` points, one after the other, by their indices: each time the
    /// point whose nearest background or earlier pick is the farthest away; of
    /// equal ones the first. Once every point coincides with a taken colour, the
    /// last pick is repeated. A point of NaNs is near to nothing. A grid without
    /// points gives no picks. To be called once.
    std::vector<std::size_t> pick(std::vector<LabPoint> const& backgrounds, std::size_t count);

private:
    class Search;
    std::unique_ptr<Search> search_;
};

}  // namespace prism
