/// Colours in the light of a relief.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "workbench/data/DataGrid.hpp"

namespace workbench {

/// The shades of a grid, and what they make of colours.
///
/// Level ground keeps its colour to the bit. What is turned away from the light
/// goes linearly to black, what is turned towards it to half way to white. Threads:
/// `grid` is as every grid; all else only reads.
class Relief {
public:
    /// The shades are those of `DataGrid::hillshade` in that light.
    Relief(std::unique_ptr<DataGrid> shades, Light const& light);

    DataGrid& grid() const { return *grid_; }

    /// The pixel in a shade; 0 is none, and changes nothing.
    Rgba8 shaded(Rgba8 const& pixel, std::uint8_t shade) const {
        Components const& components = table_[shade];
        return {components[pixel[0]], components[pixel[1]], components[pixel[2]], pixel[3]};
    }

private:
    using Components = std::array<std::uint8_t, 256>;

    std::unique_ptr<DataGrid> grid_;
    std::array<Components, 256> table_;  ///< for each shade what becomes of a component
};

}  // namespace workbench
