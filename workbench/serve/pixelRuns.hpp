/// A picture as runs of equal pixels.
#pragma once

#include <optional>
#include <string>

#include "workbench/picture/Image.hpp"

namespace workbench {

/// All pixels of a picture, row by row from the top: for each run of equal ones their
/// number, 4 bytes with the low one first, and the pixel, 4 bytes. Nothing if that is
/// no shorter than the pixels as they stand. Most maps show few colours, and a browser
/// takes in a short message a lot sooner than a long one.
std::optional<std::string> pixelRuns(Image const& image);

}  // namespace workbench
