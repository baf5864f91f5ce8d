/// Small grids, made by the tests.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tests {

/// The rows of a grid from the top.
using Rows = std::vector<std::vector<double>>;

/// An ESRI ASCII grid in which -9999 means no data.
std::string asciiGrid(Rows const& rows);

/// What one band of a GeoTIFF tells beside its values.
struct Band {
    Rows rows;
    std::optional<double> noData = {};
    double scale = 1.0;
    double offset = 0.0;
};

/// Writes a GeoTIFF of doubles. All bands have the size of the first.
void writeGeoTiff(std::filesystem::path const& file, std::vector<Band> const& bands);

/// Writes a NetCDF file with two grids of 1 x 2 cells, "depth" of 0 and 1 and
/// "salt" of 2 and 3.
void writeTwoGrids(std::filesystem::path const& file);

/// The text of a grid in GDAL's virtual format: any size, with all values 0.
std::string emptyGrid(int width, int height);

}  // namespace tests
