#include "tests/workbench/data/GridFile.hpp"

#include <cpl_conv.h>
#include <gdal.h>
#include <ogr_srs_api.h>

#include <charconv>
#include <stdexcept>

namespace tests {

namespace {

void require(bool done) {
    if (!done)
        throw std::runtime_error("GDAL cannot write the grid");
}

void writeBand(GDALRasterBandH target, Band const& band) {
    for (std::size_t y = 0; y < band.rows.size(); ++y) {
        std::vector<double> row = band.rows[y];
        int const width = static_cast<int>(row.size());
        require(GDALRasterIO(target, GF_Write, 0, static_cast<int>(y), width, 1, row.data(), width,
                             1, GDT_Float64, 0, 0) == CE_None);
    }
    if (band.noData)
        require(GDALSetRasterNoDataValue(target, *band.noData) == CE_None);
    if (band.scale != 1.0)
        require(GDALSetRasterScale(target, band.scale) == CE_None);
    if (band.offset != 0.0)
        require(GDALSetRasterOffset(target, band.offset) == CE_None);
}

std::string shortest(double value) {
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

}  // namespace

std::string asciiGrid(Rows const& rows) {
    std::string text = "ncols " + std::to_string(rows.front().size()) + "\nnrows " +
                       std::to_string(rows.size()) +
                       "\nxllcorner 0\nyllcorner 0\ncellsize 1\nNODATA_value -9999\n";
    for (auto const& row : rows) {
        for (double const value : row)
            text += shortest(value) + " ";
        text += "\n";
    }
    return text;
}

void writeGeoTiff(std::filesystem::path const& file, std::vector<Band> const& bands,
                  GridFacts const& facts) {
    GDALAllRegister();
    CPLSetConfigOption("GDAL_TIFF_INTERNAL_MASK", "YES");
    Rows const& rows = bands.front().rows;
    GDALDatasetH const dataset = GDALCreate(
        GDALGetDriverByName("GTiff"), file.c_str(), static_cast<int>(rows.front().size()),
        static_cast<int>(rows.size()), static_cast<int>(bands.size()),
        GDALGetDataTypeByName(facts.type.c_str()), nullptr);
    require(dataset != nullptr);
    if (facts.transform) {
        std::array<double, 6> transform = *facts.transform;
        require(GDALSetGeoTransform(dataset, transform.data()) == CE_None);
    }
    if (facts.epsg != 0) {
        OGRSpatialReferenceH const system = OSRNewSpatialReference(nullptr);
        require(OSRImportFromEPSG(system, facts.epsg) == OGRERR_NONE);
        require(GDALSetSpatialRef(dataset, system) == CE_None);
        OSRDestroySpatialReference(system);
    }
    for (auto const& [name, text] : facts.metadata)
        require(GDALSetMetadataItem(dataset, name.c_str(), text.c_str(), nullptr) == CE_None);
    for (std::size_t i = 0; i < bands.size(); ++i) {
        GDALRasterBandH const band = GDALGetRasterBand(dataset, static_cast<int>(i) + 1);
        writeBand(band, bands[i]);
        if (bands[i].mask.empty())
            continue;
        require(GDALCreateDatasetMaskBand(dataset, GMF_PER_DATASET) == CE_None);
        writeBand(GDALGetMaskBand(band), {bands[i].mask});
    }
    GDALClose(dataset);
}

void writeSparseGeoTiff(std::filesystem::path const& file, int side,
                        std::vector<Island> const& islands) {
    GDALAllRegister();
    char const* const options[] = {"SPARSE_OK=TRUE", "TILED=YES", "BIGTIFF=YES", nullptr};
    GDALDatasetH const dataset = GDALCreate(GDALGetDriverByName("GTiff"), file.c_str(), side, side,
                                            1, GDT_Float32, const_cast<char**>(options));
    require(dataset != nullptr);
    GDALRasterBandH const band = GDALGetRasterBand(dataset, 1);
    require(GDALSetRasterNoDataValue(band, -1.0) == CE_None);
    for (Island const& island : islands) {
        double value = island.value;
        require(GDALRasterIO(band, GF_Write, island.x, island.y, 1, 1, &value, 1, 1, GDT_Float64, 0,
                             0) == CE_None);
    }
    GDALClose(dataset);
}

void writeTwoGrids(std::filesystem::path const& file) {
    GDALAllRegister();
    GDALDatasetH const dataset =
        GDALCreateMultiDimensional(GDALGetDriverByName("netCDF"), file.c_str(), nullptr, nullptr);
    require(dataset != nullptr);
    GDALGroupH const group = GDALDatasetGetRootGroup(dataset);
    GDALDimensionH dimensions[] = {GDALGroupCreateDimension(group, "y", "", "", 1, nullptr),
                                   GDALGroupCreateDimension(group, "x", "", "", 2, nullptr)};
    GDALExtendedDataTypeH const type = GDALExtendedDataTypeCreate(GDT_Float64);
    double values[] = {0, 1};
    for (char const* const name : {"depth", "salt"}) {
        GDALMDArrayH const array =
            GDALGroupCreateMDArray(group, name, 2, dimensions, type, nullptr);
        GUInt64 const start[] = {0, 0};
        size_t const count[] = {1, 2};
        require(GDALMDArrayWrite(array, start, count, nullptr, nullptr, type, values, values,
                                 sizeof values) != 0);
        GDALMDArrayRelease(array);
        values[0] += 2;
        values[1] += 2;
    }
    GDALExtendedDataTypeRelease(type);
    for (GDALDimensionH const dimension : dimensions)
        GDALDimensionRelease(dimension);
    GDALGroupRelease(group);
    GDALClose(dataset);
}

std::string emptyGrid(int width, int height) {
    return "<VRTDataset rasterXSize=\"" + std::to_string(width) + "\" rasterYSize=\"" +
           std::to_string(height) + "\"><VRTRasterBand dataType=\"Byte\" band=\"1\"/></VRTDataset>";
}

std::string virtualGrid(std::string const& file, int width, int height) {
    return "<VRTDataset rasterXSize=\"" + std::to_string(width) + "\" rasterYSize=\"" +
           std::to_string(height) +
           "\"><VRTRasterBand dataType=\"Float64\" band=\"1\"><SimpleSource><SourceFilename "
           "relativeToVRT=\"1\">" +
           file +
           "</SourceFilename><SourceBand>1</SourceBand></SimpleSource></VRTRasterBand></"
           "VRTDataset>";
}

}  // namespace tests
