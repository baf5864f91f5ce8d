/// What GDAL finds in a picture of a grid.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "workbench/picture/Image.hpp"

namespace tests {

struct Painted {
    int width = 0;
    int height = 0;
    int bands = 0;
    std::vector<workbench::Rgba8> pixels;  ///< alpha 255 where there is no fourth band
    std::optional<std::array<double, 6>> transform;
    std::string system;  ///< such as "EPSG:32633"
    std::map<std::string, std::string> metadata;
    std::map<std::string, std::string> structure;  ///< metadata on how it is stored
    int blockWidth = 0;
    int blockHeight = 0;
    bool hasNoDataValue = false;
    bool isAlphaLast = false;
    std::vector<std::vector<workbench::Rgba8>> overviews;
};

/// Throws `std::runtime_error` if GDAL finds no picture there.
Painted readPainted(std::filesystem::path const& file);

/// The pixels in a window of a picture.
std::vector<workbench::Rgba8> readPainted(std::filesystem::path const& file, int x, int y,
                                          int width, int height);

/// The shades of GDAL's own hillshade of a grid.
std::vector<double> shadesOf(std::filesystem::path const& grid, double azimuth, double altitude);

}  // namespace tests
