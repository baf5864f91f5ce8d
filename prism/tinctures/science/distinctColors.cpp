#include "prism/tinctures/science/distinctColors.hpp"

#include <algorithm>
#include <string>

#include "prism/tinctures/science/FarthestPoints.hpp"
#include "prism/tinctures/science/vectorSize.hpp"

namespace prism {

using Tessar::rgba_float_t;

namespace {

/// As many colours as fill two gigabytes.
constexpr int MostColors = 1 << 27;

/// The points of the largest grid that 31 bits count.
constexpr int MostSteps = 1290;

/// A selection takes some 6 us for the geometric mean of its picks and the points
/// of the grid, or less; this square of it stands for some 8 seconds.
constexpr double MostWork = 2e12;

void refuse(std::string const& reason) {
    throw std::length_error(reason);
}

RgbTriple widened(rgba_float_t const& color) {
    return {color.red(), color.green(), color.blue()};
}

rgba_float_t narrowed(RgbTriple const& color) {
    return {color.red, color.green, color.blue, 1};
}

}  // namespace

std::size_t picksOf(DistinctRequest const& request) {
    std::size_t const count = vectorSize(request.count);
    if (request.count > MostColors)
        refuse("'Number of Colors' is greater than " + std::to_string(MostColors));
    std::size_t const edge = vectorSize(request.steps);
    if (request.steps > MostSteps)
        refuse("'RGB Steps' is greater than " + std::to_string(MostSteps));
    double const points = static_cast<double>(edge * edge * edge);
    std::size_t const picks = std::min(count, edge * edge * edge);
    if (static_cast<double>(picks) * points > MostWork)
        refuse("'Number of Colors' is greater than " +
               std::to_string(static_cast<std::size_t>(MostWork / points)) + ", the most of " +
               std::to_string(request.steps) + " 'RGB Steps'");
    return picks;
}

std::vector<rgba_float_t> distinctColors(DistinctRequest const& request) {
    std::size_t const picks = picksOf(request);
    std::vector<rgba_float_t> colors(static_cast<std::size_t>(request.count));
    if (picks == 0)
        return colors;
    RgbGrid const grid(request.steps);
    FarthestPoints points(request.illuminant, grid, picks);
    for (LabPoint const& background : rgbToLab(
             request.illuminant, 2, {widened(request.background1), widened(request.background2)}))
        points.take(background);
    std::size_t index = 0;
    auto color = colors.begin();
    for (; color != colors.end(); ++color) {
        std::optional<std::size_t> const pick = points.pick();
        if (!pick)
            break;
        index = *pick;
        *color = narrowed(grid[index]);
    }
    // Every point coincides with a taken color: the last pick stays.
    std::fill(color, colors.end(), narrowed(grid[index]));
    return colors;
}

}  // namespace prism
