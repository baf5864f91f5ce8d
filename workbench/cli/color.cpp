/// `telmbench color`: data painted with a map.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/numbers.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/data/DataGrid.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/session/MapObject.hpp"

namespace workbench {

namespace {

constexpr char Examples[] = R"(Examples:
  telmbench color Hypsometric hills.tif -o hills.png
      The whole map over the range of the data, a pixel for each cell.
  telmbench color Topographic docs/examples/hills.asc --range 0,1000 -o hills.png
      0 to 1000 lie at the lower and the upper end of the map. Values beyond go on
      beyond it, here to the water tints below 0.
  telmbench color Glow 'NETCDF:"sea.nc":depth' --set center=0.3 -o sea.png
      One of several grids in a file, and a parameter set.

DATA is what GDAL reads: GeoTIFF, ESRI ASCII grid, NetCDF, PNG and many others.
Values are in the units that the file tells. Without --range, a grid of one value
has the colour of the map's middle. Cells without data are transparent; all
others are opaque, as the tables of many maps have alpha 0.)";

constexpr char NoGdal[] =
    "\n\nThis build of telmbench has no GDAL, without which the command does nothing but say so.";

/// Cells of one block of rows: 8 MB of values.
constexpr int CellsAtOnce = 1 << 20;

/// Cells of a whole grid: a picture of 400 MB in memory, and as much again to
/// write it.
constexpr std::int64_t MostCells = 100'000'000;

struct Arguments {
    std::string key;
    std::string grid;
    std::vector<std::string> settings;
    std::optional<std::string> range;
    int band = 1;
    std::string file;
};

/// Where the values of a grid lie. Both ends are finite.
struct ValueRange {
    double least;
    double greatest;
};

/// Reads "0,1000".
ValueRange readRange(std::string const& text) {
    std::size_t const comma = text.find(',');
    std::optional<double> least, greatest;
    if (comma != std::string::npos) {
        least = readNumber(std::string_view(text).substr(0, comma));
        greatest = readNumber(std::string_view(text).substr(comma + 1));
    }
    if (!least || !greatest || !std::isfinite(*least) || !std::isfinite(*greatest) ||
        !(*least < *greatest))
        throw CallError("the range " + inQuotes(text) +
                        " is not of the form MIN,MAX with two finite numbers, the lower one "
                        "first, such as 0,1000");
    return {*least, *greatest};
}

/// Takes the range of values to the domain of a map, linearly, and values
/// beyond the one beyond the other. A range of one value goes to the middle.
class Scale {
public:
    Scale(ValueRange range, Orlo::Colormap const& map)
        : least_(range.least * Half),
          extent_(range.greatest * Half - range.least * Half),
          start_(map.getMin()),
          domain_(map.getMax() - start_) {}

    double operator()(double value) const {
        double const part = extent_ > 0 ? (value * Half - least_) / extent_ : Half;
        return start_ + domain_ * part;
    }

private:
    /// Halves of any two finite numbers have a finite difference.
    static constexpr double Half = 0.5;

    double least_;
    double extent_;
    double start_;
    double domain_;
};

using Block = std::function<void(int firstRow, std::span<double const> values)>;

/// Hands a grid over from its top to its bottom, in blocks of whole rows.
void overBlocks(DataGrid& grid, Progress&& progress, Block const& take) {
    int const most = std::clamp(CellsAtOnce / grid.width(), 1, grid.height());
    std::vector<double> values(static_cast<std::size_t>(most) *
                               static_cast<std::size_t>(grid.width()));
    for (int first = 0; first < grid.height(); first += most) {
        progress.show(1.0 * first / grid.height());
        int const rows = std::min(most, grid.height() - first);
        std::span<double> const block(
            values.data(), static_cast<std::size_t>(rows) * static_cast<std::size_t>(grid.width()));
        grid.read(first, block);
        take(first, block);
    }
}

/// The range of the finite values.
ValueRange rangeOf(DataGrid& grid, std::string const& name) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    ValueRange range{infinity, -infinity};
    overBlocks(grid, Progress("measuring the data"), [&](int, std::span<double const> values) {
        for (double const value : values)
            if (std::isfinite(value))
                range = {std::min(range.least, value), std::max(range.greatest, value)};
    });
    if (range.least > range.greatest)
        throw WorkError(inQuotes(name, 1000) +
                        " has no cell with a finite value, which leaves its range open; "
                        "--range MIN,MAX gives one");
    return range;
}

Image paint(DataGrid& grid, Orlo::Colormap const& map, ValueRange const& range) {
    constexpr Rgba8 transparent{0, 0, 0, 0};
    Image image(grid.width(), grid.height(), transparent);
    Scale const scale(range, map);
    overBlocks(grid, Progress("painting"), [&](int y, std::span<double const> values) {
        int x = 0;
        for (double const value : values) {
            if (!std::isnan(value))
                image.at(x, y) = opaque(map.getColor(scale(value)));
            if (++x == image.width()) {
                x = 0;
                ++y;
            }
        }
    });
    return image;
}

void checkSize(DataGrid const& grid, std::string const& name) {
    constexpr int most = Image::MostPixelsASide;
    std::int64_t const cells = std::int64_t{grid.width()} * grid.height();
    if (grid.width() <= most && grid.height() <= most && cells <= MostCells)
        return;
    throw WorkError(inQuotes(name, 1000) + " has " + std::to_string(grid.width()) + " x " +
                    std::to_string(grid.height()) + " cells, and a picture " +
                    std::to_string(most) + " a side and " + std::to_string(MostCells) +
                    " in all at most; make the grid smaller first, for instance by "
                    "'gdal_translate -outsize 8192 0'");
}

void run(SessionOptions const& common, Arguments const& given) {
    std::optional<ValueRange> range;
    if (given.range)
        range = readRange(*given.range);
    std::unique_ptr<DataGrid> const grid = openGrid(given.grid, given.band);
    checkSize(*grid, given.grid);
    Session const session(common);
    MapObject const subject(session, given.key, given.settings);
    if (!range)
        range = rangeOf(*grid, given.grid);
    writePng(given.file, paint(*grid, subject.map(), *range));
}

}  // namespace

void addColor(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command = program.add_subcommand("color", "Paint a grid of data with a map");
    auto const given = std::make_shared<Arguments>();
    command->add_option("KEY", given->key, "Full key, or name, of the entry")->required();
    command->add_option("DATA", given->grid, "The grid: a file, or another name that GDAL knows")
        ->required();
    command->add_option("--set", given->settings, "Set a parameter, as NAME=TEXT")
        ->allow_extra_args(false);
    command
        ->add_option("--range", given->range,
                     "The values at the lower and the upper end of the map, instead of the "
                     "least and the greatest of the data")
        ->type_name("MIN,MAX");
    command->add_option("--band", given->band, "The band of the data, from 1 on")
        ->type_name("N")
        ->capture_default_str();
    command->add_option("-o", given->file, "The picture to write")->type_name("FILE")->required();
    command->footer(readsGrids() ? Examples : std::string(Examples) + NoGdal);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
