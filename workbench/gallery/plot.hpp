/// Drawings of what a map does over its range.
#pragma once

#include <string>

#include "workbench/picture/ramp.hpp"

namespace workbench {

/// Red, green and blue as they are, also beyond 0 to 1, as an SVG element. The
/// lines of 0 and 1 stand out, and what lies beyond them is shaded. The page's
/// style gives the colours.
std::string componentPlot(Samples const& samples);

/// The lightness L*, 0 to 100, of the colours as a screen shows them; below it
/// the range of the map is written.
std::string lightnessPlot(Samples const& samples);

/// Whether the plot of components has a scale that people have to be told of.
bool isLogarithmic(Samples const& samples);

}  // namespace workbench
