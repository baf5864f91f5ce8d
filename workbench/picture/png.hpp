/// Pictures as files.
#pragma once

#include <filesystem>
#include <string>

#include "workbench/picture/Image.hpp"

namespace workbench {

/// The bytes of a PNG file; the same bytes on every system.
std::string encodePng(Image const& image);

/// Writes the picture as a PNG file. Throws `WorkError` that names the file and
/// the reason; a file that stood there is unharmed then.
void writePng(std::filesystem::path const& file, Image const& image);

}  // namespace workbench
