/// Grids of data out of files, and pictures of them into files.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "workbench/data/Cells.hpp"
#include "workbench/data/PictureForm.hpp"
#include "workbench/picture/Image.hpp"

namespace workbench {

/// Hears how much of some work is done, from 0 to 1, on the thread that asked
/// for the work. What it throws ends the work and goes on to who asked for it.
using Progressing = std::function<void(double)>;

/// Where the light of a shaded relief comes from, in degrees.
struct Light {
    double azimuth = 315.0;  ///< clockwise from the upper edge of the grid
    double altitude = 45.0;  ///< above the horizon
};

/// Pixels of a grid, window by window in the order that they were asked for.
class PixelSource {
public:
    virtual ~PixelSource() = default;
    PixelSource(PixelSource const&) = delete;
    PixelSource& operator=(PixelSource const&) = delete;

    /// The pixels of the next window, row by row; none if all are transparent.
    /// They stay as they are until the next call.
    virtual std::span<Rgba8 const> next() = 0;

protected:
    PixelSource() = default;
};

/// What a picture of a grid is to be.
struct PictureOrder {
    std::filesystem::path file;
    std::filesystem::path scratch;  ///< a file to use on the way
    PictureForm form;
    std::vector<std::string> notes;  ///< metadata beside those of the grid, as NAME=TEXT
};

/// One band of a two-dimensional grid, read as needed.
///
/// Rows are counted from the top of the file. Owner: whoever opened it. Threads:
/// one at a time. Errors: `WorkError` that names the file and the reason.
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

    /// All of the grid in windows of a bounded size. Those that a picture of that
    /// form is made of cover it row by row; without a form, as it is best read.
    virtual std::vector<Window> windows(std::optional<PictureForm> form = {}) const = 0;

    /// Reads a window. The vectors of `cells` are used again.
    virtual void read(Window const& window, Cells& cells) = 0;

    /// The relief of this grid in that light, as a grid of the same size: 1 to
    /// 255, without data where it has no slope. It lives in the named file, which
    /// must outlive it.
    virtual std::unique_ptr<DataGrid> hillshade(Light const& light,
                                                std::filesystem::path const& file,
                                                Progressing const& progress) = 0;

    /// Writes a picture of this grid with its place on the earth and its metadata.
    /// `pixels` are those of `windows(order.form)`. Only a whole picture is written
    /// without an error.
    virtual void write(PictureOrder const& order, PixelSource& pixels,
                       Progressing const& progress) = 0;

protected:
    DataGrid() = default;
};

/// The size of a grid that is read at another resolution than its own.
struct Resize {
    /// Cells across and down; 0 for one of them keeps the proportions.
    int width = 0;
    int height = 0;
    double factor = 0.0;             ///< of both, instead of the two above
    std::string method = "nearest";  ///< as GDAL names it
};

/// Whether this build of the program reads grids.
bool readsGrids() noexcept;

/// Opens a grid by the name of its file, or by another name that GDAL knows,
/// such as `NETCDF:"file.nc":depth`. Bands count from 1.
///
/// Throws `WorkError` if there is no such grid, or if this build reads none;
/// `CallError` if the file has no such band.
std::unique_ptr<DataGrid> openGrid(std::string const& name, int band = 1,
                                   std::optional<Resize> const& resize = {});

}  // namespace workbench
