#include "workbench/data/paint.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/picture/domain.hpp"

namespace workbench {

namespace {

/// Cells of one block of rows: 8 MB of values.
constexpr int CellsAtOnce = 1 << 20;

/// Cells of a whole grid: a picture of 400 MB in memory, and as much again to
/// write it.
constexpr std::int64_t MaxCells = 100'000'000;

/// Takes the range of values to the domain of a map, linearly, and values
/// beyond the one beyond the other. A range of one value goes to the middle.
class Scale {
public:
    Scale(Interval const& range, Orlo::Colormap const& map)
        : min_(range.min * Half),
          extent_(range.max * Half - range.min * Half),
          domain_(domainOf(map)) {}

    double operator()(double value) const {
        double const part = extent_ > 0 ? (value * Half - min_) / extent_ : Half;
        return domain_.at(part);
    }

private:
    /// Halves of any two finite numbers have a finite difference.
    static constexpr double Half = 0.5;

    double min_;
    double extent_;
    Interval domain_;
};

using Block = std::function<void(int firstRow, std::span<double const> values)>;

/// Hands a grid over from its top to its bottom, in blocks of whole rows.
void overBlocks(DataGrid& grid, std::function<void(double)> const& progress, Block const& take) {
    int const maxRows = std::clamp(CellsAtOnce / grid.width(), 1, grid.height());
    std::vector<double> values(static_cast<std::size_t>(maxRows) *
                               static_cast<std::size_t>(grid.width()));
    for (int first = 0; first < grid.height(); first += maxRows) {
        if (progress)
            progress(1.0 * first / grid.height());
        int const rows = std::min(maxRows, grid.height() - first);
        std::span<double> const block(
            values.data(), static_cast<std::size_t>(rows) * static_cast<std::size_t>(grid.width()));
        grid.read(first, block);
        take(first, block);
    }
}

}  // namespace

Interval rangeOf(DataGrid& grid, std::string const& name,
                 std::function<void(double)> const& progress) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Interval range{infinity, -infinity};
    overBlocks(grid, progress, [&](int, std::span<double const> values) {
        for (double const value : values)
            if (std::isfinite(value))
                range = {std::min(range.min, value), std::max(range.max, value)};
    });
    if (range.min > range.max)
        throw WorkError(inQuotes(name, 1000) +
                        " has no cell with a finite value, which leaves its range open; "
                        "--range MIN,MAX gives one");
    return range;
}

Image paint(DataGrid& grid, Orlo::Colormap const& map, Interval const& range,
            std::function<void(double)> const& progress) {
    constexpr Rgba8 transparent{0, 0, 0, 0};
    Image image(grid.width(), grid.height(), transparent);
    Scale const scale(range, map);
    overBlocks(grid, progress, [&](int y, std::span<double const> values) {
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

void checkPaintable(DataGrid const& grid, std::string const& name) {
    constexpr int max = Image::MaxPixelsASide;
    std::int64_t const cells = std::int64_t{grid.width()} * grid.height();
    if (grid.width() <= max && grid.height() <= max && cells <= MaxCells)
        return;
    throw WorkError(inQuotes(name, 1000) + " has " + std::to_string(grid.width()) + " x " +
                    std::to_string(grid.height()) + " cells, and a picture " + std::to_string(max) +
                    " a side and " + std::to_string(MaxCells) +
                    " in all at most; make the grid smaller first, for instance by "
                    "'gdal_translate -outsize 8192 0'");
}

}  // namespace workbench
