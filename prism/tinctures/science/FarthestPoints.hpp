/// The choice of colours that are far apart.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "prism/tinctures/science/LabGrid.hpp"

namespace prism {

/// The search for points of a grid that are far apart.
///
/// The picks are those of one pass over all points for each colour, to the last
/// bit, but only those points are looked at that may be picked: time and memory
/// grow with the colours asked for, not with the grid. Threads: any, one object
/// each.
class FarthestPoints {
public:
    /// Searches a grid of at least one step, and of no more points than 31 bits
    /// count; fastest for that many picks.
    FarthestPoints(Orlo::Enum const& illuminant, RgbGrid const& grid, std::size_t picks);
    FarthestPoints(FarthestPoints const&) = delete;
    FarthestPoints& operator=(FarthestPoints const&) = delete;
    ~FarthestPoints();

    /// Takes a colour that the picks shall be far from.
    void take(LabPoint const& background);

    /// Picks a point and gives its index: the one whose nearest background or
    /// earlier pick is the farthest away; of equal ones the first. None if every
    /// point coincides with a taken colour. A point of NaNs is near to nothing.
    std::optional<std::size_t> pick();

private:
    struct Search;
    std::unique_ptr<Search> search_;
};

}  // namespace prism
