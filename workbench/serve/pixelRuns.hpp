/// A picture on its way to a browser.
#pragma once

#include <string>

#include "workbench/picture/Image.hpp"

namespace workbench {

/// All pixels of a picture, row by row from the top, in 32-bit numbers with the low
/// byte first: a number N and a pixel, which stands N times; or N + 2^31 and N pixels
/// as they are. Never longer than the pixels by more than 8 bytes. Most maps show few
/// colours, all leave background, and a browser takes in a short message a lot sooner
/// than a long one.
std::string pixelRuns(Image const& image);

}  // namespace workbench
