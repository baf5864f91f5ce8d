/// Grids of data out of files.
#pragma once

#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace workbench {

/// One band of a two-dimensional grid, read as needed.
///
/// Rows are counted from the top of the file. Values are in the units of the
/// data: a scale and an offset that the file tells are applied. Owner: whoever
/// opened it. Threads: one at a time.
class DataGrid {
public:
    virtual ~DataGrid() = default;
    DataGrid(DataGrid const&) = delete;
    DataGrid& operator=(DataGrid const&) = delete;

    /// Cells across and down, at least 1 each.
    virtual int width() const = 0;
    virtual int height() const = 0;

    /// The files that the grid is read from, as far as the reader tells.
    virtual std::vector<std::filesystem::path> files() const = 0;

    /// Reads `values.size() / width()` whole rows from row `first` on; a cell
    /// without data is NaN. Throws `WorkError` that names the file and the
    /// reason; the values are undefined then.
    virtual void read(int first, std::span<double> values) = 0;

protected:
    DataGrid() = default;
};

/// Whether this build of the program reads grids.
bool readsGrids() noexcept;

/// Opens a grid by the name of its file, or by another name that GDAL knows,
/// such as `NETCDF:"file.nc":depth`. Bands count from 1.
///
/// Throws `WorkError` if there is no such grid, or if this build reads none;
/// `CallError` if the file has no such band.
std::unique_ptr<DataGrid> openGrid(std::string const& name, int band = 1);

}  // namespace workbench
