#include "tests/workbench/data/Painted.hpp"

#include <gdal.h>
#include <gdal_utils.h>
#include <ogr_srs_api.h>

#include <memory>
#include <stdexcept>

namespace tests {

using workbench::Rgba8;

namespace {

struct Closer {
    void operator()(void* dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<void, Closer>;

void require(bool done) {
    if (!done)
        throw std::runtime_error("GDAL cannot read the picture");
}

Dataset open(std::filesystem::path const& file) {
    GDALAllRegister();
    Dataset dataset(GDALOpen(file.c_str(), GA_ReadOnly));
    require(dataset != nullptr);
    return dataset;
}

/// Pixels whose component `i` stands in the band that `bandOf(i)` gives.
template <class BandOf>
std::vector<Rgba8> pixelsOf(int bands, int x, int y, int width, int height, BandOf const& bandOf) {
    std::vector<Rgba8> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                              Rgba8{0, 0, 0, 255});
    for (int i = 0; i < bands; ++i)
        require(GDALRasterIO(bandOf(i + 1), GF_Read, x, y, width, height, pixels[0].data() + i,
                             width, height, GDT_Byte, 4, 4 * width) == CE_None);
    return pixels;
}

std::map<std::string, std::string> metadataOf(Dataset const& dataset, char const* domain) {
    std::map<std::string, std::string> all;
    char** const entries = GDALGetMetadata(dataset.get(), domain);
    for (char** entry = entries; entry != nullptr && *entry != nullptr; ++entry) {
        std::string const text = *entry;
        all[text.substr(0, text.find('='))] = text.substr(text.find('=') + 1);
    }
    return all;
}

std::string systemOf(Dataset const& dataset) {
    OGRSpatialReferenceH const system = GDALGetSpatialRef(dataset.get());
    if (system == nullptr)
        return "";
    char const* const code = OSRGetAuthorityCode(system, nullptr);
    return code == nullptr ? "unknown" : "EPSG:" + std::string(code);
}

}  // namespace

Painted readPainted(std::filesystem::path const& file) {
    Dataset const dataset = open(file);
    Painted painted;
    painted.width = GDALGetRasterXSize(dataset.get());
    painted.height = GDALGetRasterYSize(dataset.get());
    painted.bands = GDALGetRasterCount(dataset.get());
    auto const band = [&](int number) { return GDALGetRasterBand(dataset.get(), number); };
    painted.pixels = pixelsOf(painted.bands, 0, 0, painted.width, painted.height, band);
    std::array<double, 6> transform{};
    if (GDALGetGeoTransform(dataset.get(), transform.data()) == CE_None)
        painted.transform = transform;
    painted.system = systemOf(dataset);
    painted.metadata = metadataOf(dataset, "");
    painted.structure = metadataOf(dataset, "IMAGE_STRUCTURE");
    GDALGetBlockSize(band(1), &painted.blockWidth, &painted.blockHeight);
    int has = 0;
    GDALGetRasterNoDataValue(band(1), &has);
    painted.hasNoDataValue = has != 0;
    painted.isAlphaLast = GDALGetRasterColorInterpretation(band(painted.bands)) == GCI_AlphaBand;
    for (int i = 0; i < GDALGetOverviewCount(band(1)); ++i)
        painted.overviews.push_back(
            pixelsOf(painted.bands, 0, 0, GDALGetRasterBandXSize(GDALGetOverview(band(1), i)),
                     GDALGetRasterBandYSize(GDALGetOverview(band(1), i)),
                     [&](int number) { return GDALGetOverview(band(number), i); }));
    return painted;
}

std::vector<Rgba8> readPainted(std::filesystem::path const& file, int x, int y, int width,
                               int height) {
    Dataset const dataset = open(file);
    return pixelsOf(GDALGetRasterCount(dataset.get()), x, y, width, height,
                    [&](int number) { return GDALGetRasterBand(dataset.get(), number); });
}

std::vector<double> shadesOf(std::filesystem::path const& grid, double azimuth, double altitude) {
    Dataset const dataset = open(grid);
    std::string const az = std::to_string(azimuth), alt = std::to_string(altitude);
    char const* const words[] = {
        "-of", "MEM", "-az", az.c_str(), "-alt", alt.c_str(), "-compute_edges", nullptr};
    GDALDEMProcessingOptions* const options =
        GDALDEMProcessingOptionsNew(const_cast<char**>(words), nullptr);
    Dataset const shaded(
        GDALDEMProcessing("", dataset.get(), "hillshade", nullptr, options, nullptr));
    GDALDEMProcessingOptionsFree(options);
    require(shaded != nullptr);
    int const width = GDALGetRasterXSize(shaded.get());
    int const height = GDALGetRasterYSize(shaded.get());
    std::vector<double> shades(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    require(GDALRasterIO(GDALGetRasterBand(shaded.get(), 1), GF_Read, 0, 0, width, height,
                         shades.data(), width, height, GDT_Float64, 0, 0) == CE_None);
    return shades;
}

}  // namespace tests
