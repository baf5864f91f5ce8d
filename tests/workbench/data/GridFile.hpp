/// Small grids, made by the tests.
#pragma once

#include <array>
#include <filesystem>
#include <map>
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
    Rows mask = {};  ///< 0 where there is no data; nothing: no mask
};

/// What a GeoTIFF tells of all its bands.
struct GridFacts {
    std::string type = "Float64";  ///< of the values, as GDAL names it
    std::optional<std::array<double, 6>> transform = {};
    int epsg = 0;  ///< the system of coordinates, or 0
    std::map<std::string, std::string> metadata = {};
};

/// Writes a GeoTIFF. All bands have the size of the first.
void writeGeoTiff(std::filesystem::path const& file, std::vector<Band> const& bands,
                  GridFacts const& facts = {});

/// Writes a GeoTIFF of 32-bit floats whose blocks have no data, and are not in the
/// file, but for one cell at each of the places, which has a value.
struct Island {
    int x, y;
    double value;
};
void writeSparseGeoTiff(std::filesystem::path const& file, int side,
                        std::vector<Island> const& islands);

/// Writes a NetCDF file with two grids of 1 x 2 cells, "depth" of 0 and 1 and
/// "salt" of 2 and 3.
void writeTwoGrids(std::filesystem::path const& file);

/// The text of a grid in GDAL's virtual format: any size, with all values 0.
std::string emptyGrid(int width, int height);

/// The text of a grid in GDAL's virtual format that shows another file.
std::string virtualGrid(std::string const& file, int width, int height);

}  // namespace tests
