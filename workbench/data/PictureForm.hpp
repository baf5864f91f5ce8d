/// The forms that pictures of grids are written in.
#pragma once

#include <filesystem>
#include <vector>

namespace workbench {

enum class PictureForm {
    GeoTiff,
    CloudOptimized,  ///< a GeoTIFF with overviews, in an order that suits reading over a network
    Png,
    Jpeg,
    WebP,
};

/// The form that the ending of a file stands for. Throws `CallError` that names
/// the known endings.
PictureForm formOf(std::filesystem::path const& file);

/// The files that may be written beside a picture of that name, and those that
/// would speak of another one if they were left there.
std::vector<std::filesystem::path> companionsOf(std::filesystem::path const& file);

}  // namespace workbench
