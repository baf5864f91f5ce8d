/// Grids, painted with a map.
#pragma once

#include <functional>
#include <string>

#include "host/colormap/Colormap.hpp"
#include "workbench/common/Interval.hpp"
#include "workbench/data/DataGrid.hpp"
#include "workbench/picture/Image.hpp"

namespace workbench {

/// Throws `WorkError` if the grid of that name has more cells than a picture can
/// have pixels.
void checkPaintable(DataGrid const& grid, std::string const& name);

/// The range of the finite values. Throws `WorkError` if there is none.
///
/// Here and below, `progress` hears how much is done, from 0 to 1.
Interval rangeOf(DataGrid& grid, std::string const& name,
                 std::function<void(double)> const& progress = {});

/// A picture with a pixel for each cell, opaque; cells without data are
/// transparent. The finite range goes to the map's domain, linearly, values
/// beyond the one go beyond the other, and a range of one value goes to the
/// middle.
Image paint(DataGrid& grid, Orlo::Colormap const& map, Interval const& range,
            std::function<void(double)> const& progress = {});

}  // namespace workbench
