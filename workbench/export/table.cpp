#include "workbench/export/table.hpp"

#include <algorithm>
#include <cmath>

#include "workbench/export/modelOf.hpp"

namespace workbench {

using Orlo::rgba_float_t;

namespace {

bool hasEdgesInPlace(Model const& model, std::size_t count) {
    constexpr double Near = 1e-9;
    return std::ranges::all_of(model.pieces, [&](Piece const& piece) {
        double const place = model.part(piece.from) * static_cast<double>(count);
        return piece.joined || std::abs(place - std::round(place)) <= Near;
    });
}

bool hasLinesWithinError(Model const& model, std::size_t count) {
    double const error = std::max(model.error, 0.5 / 255);
    return std::ranges::all_of(model.pieces, [&](Piece const& piece) {
        double const parts =
            (model.part(piece.to) - model.part(piece.from)) * static_cast<double>(count);
        double const rise = shownDifference(piece.start, piece.end);
        return rise <= error || rise / parts / 2 <= error;
    });
}

}  // namespace

std::vector<rgba_float_t> evenColors(Model const& model, std::size_t count) {
    std::vector<rgba_float_t> colors;
    for (std::size_t i = 0; i < count; ++i)
        colors.push_back(shown(colorAt(
            model, model.range.at(static_cast<double>(i) + 0.5, static_cast<double>(count)))));
    return colors;
}

std::size_t evenCount(Model const& model, std::size_t maxCount) {
    for (std::size_t count = model.isClasses() ? 1 : 256; count < maxCount; ++count)
        if (hasEdgesInPlace(model, count) && hasLinesWithinError(model, count))
            return count;
    return maxCount;
}

double evenError(Model const& model, std::size_t count) {
    constexpr int Tries = 8;
    std::vector<rgba_float_t> const colors = evenColors(model, count);
    double greatest = 0.0;
    for (std::size_t i = 0; i < count; ++i) {
        auto const at = [&](double part) {
            return model.range.at(static_cast<double>(i) + part, static_cast<double>(count));
        };
        bool const hasEdge = std::ranges::any_of(model.pieces, [&](Piece const& piece) {
            return !piece.joined && piece.from > at(0.0) && piece.from < at(1.0);
        });
        for (int k = 0; k < Tries && !hasEdge; ++k)
            greatest =
                std::max(greatest, shownDifference(colors[i], colorAt(model, at(1.0 * k / Tries))));
    }
    return greatest;
}

}  // namespace workbench
