/// A curve as the path of a drawing.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// The data of an SVG path through heights that stand `width` / size apart, each
/// at the middle of its column. Places and heights are in pixels, and rounded to
/// hundredths. Points that the path passes within a tenth of a pixel anyway are
/// left out. An empty height is a gap.
std::string curvePath(std::vector<std::optional<double>> const& heights, double width);

}  // namespace workbench
