#include "workbench/data/paint.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/picture/domain.hpp"

namespace workbench {

namespace {

constexpr Rgba8 Transparent{0, 0, 0, 0};

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

void look(Cells const& cells, Orlo::Colormap const& map, Scale const& scale,
          std::vector<Rgba8>& pixels) {
    pixels.resize(cells.window.size());
    Rgba8* pixel = pixels.data();
    cells.forEach([&](double value) {
        *pixel++ = std::isnan(value) ? Transparent : opaque(map.getColor(scale(value)));
    });
}

void shade(Relief const& relief, Cells const& shades, std::vector<Rgba8>& pixels) {
    Rgba8* pixel = pixels.data();
    shades.forEach([&](double value) {
        *pixel = relief.shaded(*pixel, std::isnan(value) ? 0 : static_cast<std::uint8_t>(value));
        ++pixel;
    });
}

/// Cells, and the range of their finite values.
struct Measured {
    Cells cells;
    Interval range;
};

constexpr Interval Nothing{std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity()};

void measure(Measured& piece) {
    Interval range = Nothing;
    if (!piece.cells.isVoid)
        piece.cells.forEach([&](double value) {
            if (std::isfinite(value))
                range = {std::min(range.min, value), std::max(range.max, value)};
        });
    piece.range = range;
}

}  // namespace

Interval rangeOf(DataGrid& grid, std::string const& name, Progressing const& progress) {
    Conveyor<Measured> pieces(
        grid.windows(),
        [&](Window const& window, Measured& piece) { grid.read(window, piece.cells); }, measure);
    Interval range = Nothing;
    double done = 0;
    while (Measured const* const piece = pieces.next()) {
        range = {std::min(range.min, piece->range.min), std::max(range.max, piece->range.max)};
        done += 1;
        if (progress)
            progress(done / double(pieces.windows().size()));
    }
    if (range.min > range.max)
        throw WorkError(inQuotes(name, 1000) +
                        " has no cell with a finite value, which leaves its range open; "
                        "--range MIN,MAX gives one");
    return range;
}

Painting::Painting(DataGrid& grid, std::vector<Window> windows, Paint const& paint)
    : pieces_(
          std::move(windows),
          [&grid, paint](Window const& window, Piece& piece) {
              grid.read(window, piece.cells);
              if (paint.relief != nullptr && !piece.cells.isVoid)
                  paint.relief->grid().read(window, piece.shades);
          },
          [paint, scale = Scale(paint.range, paint.map)](Piece& piece) {
              if (piece.cells.isVoid)
                  return;
              look(piece.cells, paint.map, scale, piece.pixels);
              if (paint.relief != nullptr)
                  shade(*paint.relief, piece.shades, piece.pixels);
          }) {}

std::span<Rgba8 const> Painting::next() {
    Piece const* const piece = pieces_.next();
    if (piece == nullptr || piece->cells.isVoid)
        return {};
    return piece->pixels;
}

}  // namespace workbench
