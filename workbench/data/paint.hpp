/// Grids, painted with a map.
#pragma once

#include <string>

#include "host/colormap/Colormap.hpp"
#include "workbench/common/Interval.hpp"
#include "workbench/data/Conveyor.hpp"
#include "workbench/data/DataGrid.hpp"
#include "workbench/data/Relief.hpp"

namespace workbench {

/// The range of the finite values. Throws `WorkError` if there is none; `name` is
/// the grid's.
Interval rangeOf(DataGrid& grid, std::string const& name, Progressing const& progress = {});

/// What the cells of a grid look like.
struct Paint {
    Orlo::Colormap const& map;
    Interval range;  ///< goes to the map's domain, linearly, and what is beyond goes beyond
    Relief const* relief = nullptr;  ///< shades the colours, if there is one
};

/// The pixels of a grid, opaque; cells without data are transparent. Each cell is
/// looked up. A range of one value goes to the middle of the map. The grids, and
/// what the paint refers to, must outlive it.
class Painting : public PixelSource {
public:
    Painting(DataGrid& grid, std::vector<Window> windows, Paint const& paint);

    std::span<Rgba8 const> next() override;

private:
    struct Piece {
        Cells cells;
        Cells shades;
        std::vector<Rgba8> pixels;
    };

    Conveyor<Piece> pieces_;
};

}  // namespace workbench
