/// Grids read through GDAL: a library of its own, which `openGrid` loads.
#include <cpl_conv.h>
#include <cpl_string.h>
#include <gdal_utils.h>
#include <ogr_srs_api.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <system_error>

#include "workbench/common/paths.hpp"
#include "workbench/data/GdalCall.hpp"
#include "workbench/data/GdalPicture.hpp"
#include "workbench/data/shape.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(std::string const& name, std::string const& reason) {
    throw WorkError("cannot read " + inQuotes(name, 1000) + ": " + reason);
}

/// Why GDAL opens nothing under that name.
std::string openProblem(std::string const& name, std::string const& complaint) {
    std::error_code error;
    fs::file_status const status = fs::status(name, error);
    bool const plain = name.find(':') == std::string::npos && !name.starts_with("/vsi");
    if (plain && !fs::exists(status))
        return std::generic_category().message(ENOENT);
    if (fs::is_directory(status))
        return "it is a folder, and no grid";
    if (fs::is_regular_file(status) && fs::file_size(name, error) == 0)
        return "it is empty";
    return "GDAL finds no grid there (" + complaint + ")";
}

/// The names of the grids that a file of several holds.
std::string partsOf(Dataset const& dataset) {
    std::string names;
    char** const entries = GDALGetMetadata(dataset.get(), "SUBDATASETS");
    for (char** entry = entries; entry != nullptr && *entry != nullptr; ++entry) {
        std::string const text = *entry;
        std::size_t const sign = text.find("_NAME=");
        if (sign != std::string::npos)
            names += (names.empty() ? "" : ", ") + inQuotes(text.substr(sign + 6), 1000);
    }
    return names;
}

Dataset open(std::string const& name) {
    Complaints const complaints;
    Dataset dataset(GDALOpenEx(name.c_str(), GDAL_OF_RASTER | GDAL_OF_VERBOSE_ERROR, nullptr,
                               nullptr, nullptr));
    if (!dataset)
        fail(name, openProblem(name, complaints.text()));
    if (GDALGetRasterCount(dataset.get()) > 0)
        return dataset;
    std::string const parts = partsOf(dataset);
    fail(name, parts.empty() ? "it holds no grid" : "it holds several grids; name one: " + parts);
}

GDALRasterBandH findBand(Dataset const& dataset, std::string const& name, int number) {
    int const count = GDALGetRasterCount(dataset.get());
    if (number < 1 || number > count)
        throw CallError(inQuotes(name, 1000) + " has no band " + std::to_string(number) +
                        "; it has " +
                        (count == 1 ? "band 1 alone" : "the bands 1 to " + std::to_string(count)));
    return GDALGetRasterBand(dataset.get(), number);
}

/// A number that a file may tell; otherwise the given one.
template <class Tell>
double told(Tell const& tell, GDALRasterBandH band, double defaultNumber) {
    int is = 0;
    double const number = tell(band, &is);
    return is != 0 ? number : defaultNumber;
}

/// The words of a command of GDAL, in the form that its library takes.
class Words {
public:
    explicit Words(std::vector<std::string> const& words) {
        for (std::string const& word : words)
            list_ = CSLAddString(list_, word.c_str());
    }
    Words(Words const&) = delete;
    Words& operator=(Words const&) = delete;
    ~Words() { CSLDestroy(list_); }

    char** get() const { return list_; }

private:
    char** list_ = nullptr;
};

/// The size that is asked for, of a grid of that size.
std::pair<int, int> sizeOf(Resize const& resize, int width, int height) {
    auto const cells = [](double exact) {
        return static_cast<int>(std::clamp(std::round(exact), 1.0, 2147483647.0));
    };
    if (resize.factor > 0.0)
        return {cells(width * resize.factor), cells(height * resize.factor)};
    return {resize.width > 0 ? resize.width : cells(1.0 * width * resize.height / height),
            resize.height > 0 ? resize.height : cells(1.0 * height * resize.width / width)};
}

/// The same data at another resolution: GDAL's virtual dataset over the other.
Dataset resized(Dataset const& dataset, std::string const& name, Resize const& resize) {
    auto const [width, height] =
        sizeOf(resize, GDALGetRasterXSize(dataset.get()), GDALGetRasterYSize(dataset.get()));
    Words const words({"-of", "VRT", "-r", resize.method, "-outsize", std::to_string(width),
                       std::to_string(height)});
    Complaints const complaints;
    std::unique_ptr<GDALTranslateOptions, decltype(&GDALTranslateOptionsFree)> const options(
        GDALTranslateOptionsNew(words.get(), nullptr), GDALTranslateOptionsFree);
    Dataset result(options ? GDALTranslate("", dataset.get(), options.get(), nullptr) : nullptr);
    if (!result)
        fail(name, complaints.text());
    return result;
}

/// Adds the files of a dataset. A virtual one tells those that it names itself,
/// and they may be virtual again.
void addFiles(GDALDatasetH dataset, std::set<fs::path>& all) {
    char** const names = GDALGetFileList(dataset);
    for (char** name = names; name != nullptr && *name != nullptr; ++name) {
        GDALDriverH const driver = GDALIdentifyDriver(*name, nullptr);
        bool const isVirtual =
            driver != nullptr && std::string(GDALGetDescription(driver)) == "VRT";
        if (!all.insert(pathOf(*name)).second || !isVirtual)
            continue;
        if (Dataset const inner{GDALOpen(*name, GA_ReadOnly)})
            addFiles(inner.get(), all);
    }
    CSLDestroy(names);
}

/// Whether floats hold every value of a type.
bool fitsFloat(GDALDataType type) {
    return type == GDT_Byte || type == GDT_UInt16 || type == GDT_Int16 || type == GDT_Float32;
}

/// Whether lengths on the ground are degrees, where heights are metres.
bool isInDegrees(GDALDatasetH dataset) {
    OGRSpatialReferenceH const system = GDALGetSpatialRef(dataset);
    return system != nullptr && OSRIsGeographic(system) != 0;
}

class GdalGrid : public DataGrid {
public:
    GdalGrid(std::string const& name, int number, std::optional<Resize> const& resize)
        : name_(name),
          file_(open(name)),
          resized_(resize ? resized(file_, name, *resize) : nullptr),
          number_(number),
          band_(findBand(resized_ ? resized_ : file_, name, number)),
          scale_(told(GDALGetRasterScale, band_, 1.0)),
          offset_(told(GDALGetRasterOffset, band_, 0.0)),
          isComplete_((GDALGetMaskFlags(band_) & GMF_ALL_VALID) != 0),
          holdsFloats_(fitsFloat(GDALGetRasterDataType(band_))) {}

    int width() const override { return GDALGetRasterBandXSize(band_); }
    int height() const override { return GDALGetRasterBandYSize(band_); }

    std::vector<fs::path> files() const override {
        Complaints const quiet;
        std::set<fs::path> all;
        addFiles(file_.get(), all);
        return {all.begin(), all.end()};
    }

    std::vector<Window> windows(std::optional<PictureForm> form) const override {
        if (form && isMadeOfRows(*form))
            return rowWindows(width(), height());
        int blockWidth = 0, blockHeight = 0;
        GDALGetBlockSize(band_, &blockWidth, &blockHeight);
        return blockWindows(width(), height(), blockWidth, blockHeight);
    }

    void read(Window const& window, Cells& cells) override {
        Complaints const complaints;
        cells.window = window;
        cells.scale = scale_;
        cells.offset = offset_;
        cells.valid.clear();
        cells.isVoid = isVoid(window);
        if (cells.isVoid)
            return;
        bool done = holdsFloats_ ? transfer(band_, window, vectorIn<float>(cells), GDT_Float32)
                                 : transfer(band_, window, vectorIn<double>(cells), GDT_Float64);
        if (done && !isComplete_)
            done = transfer(GDALGetMaskBand(band_), window, cells.valid, GDT_Byte);
        if (!done)
            fail(name_, complaints.text());
    }

    std::unique_ptr<DataGrid> hillshade(Light const& light, fs::path const& file,
                                        Progressing const& progress) override {
        std::vector<std::string> words{"-of",
                                       "GTiff",
                                       "-compute_edges",
                                       "-b",
                                       std::to_string(number_),
                                       "-az",
                                       std::to_string(light.azimuth),
                                       "-alt",
                                       std::to_string(light.altitude),
                                       "-z",
                                       std::to_string(scale_),
                                       "-co",
                                       "BIGTIFF=IF_SAFER"};
        if (isInDegrees(dataset()))
            words.insert(words.end(), {"-s", "111120"});  // metres of a degree of latitude
        Complaints const complaints;
        Passage passage(progress);
        std::unique_ptr<GDALDEMProcessingOptions, decltype(&GDALDEMProcessingOptionsFree)> const
            options(GDALDEMProcessingOptionsNew(Words(words).get(), nullptr),
                    GDALDEMProcessingOptionsFree);
        if (options)
            GDALDEMProcessingOptionsSetProgress(options.get(), Passage::progress, &passage);
        bool const done =
            options && Dataset(GDALDEMProcessing(textOf(file).c_str(), dataset(), "hillshade",
                                                 nullptr, options.get(), nullptr));
        passage.goOn();
        if (!done || complaints.failed())
            throw WorkError("the relief of " + inQuotes(name_, 1000) +
                            " cannot be computed: " + complaints.text());
        return std::make_unique<GdalGrid>(textOf(file), 1, std::nullopt);
    }

    void write(PictureOrder const& order, PixelSource& pixels,
               Progressing const& progress) override {
        writePicture({dataset(), windows(order.form), isSparse()}, order, pixels, progress);
    }

private:
    GDALDatasetH dataset() const { return (resized_ ? resized_ : file_).get(); }

    template <class Value>
    static std::vector<Value>& vectorIn(Cells& cells) {
        if (!std::holds_alternative<std::vector<Value>>(cells.values))
            cells.values.emplace<std::vector<Value>>();
        return std::get<std::vector<Value>>(cells.values);
    }

    template <class Value>
    static bool transfer(GDALRasterBandH from, Window const& window, std::vector<Value>& target,
                         GDALDataType type) {
        target.resize(window.size());
        return GDALRasterIO(from, GF_Read, window.x, window.y, window.width, window.height,
                            target.data(), window.width, window.height, type, 0, 0) == CE_None;
    }

    /// Whether the file leaves out some of the window, and all of it if so asked.
    bool leavesOut(Window const& window, bool all) const {
        int const status = GDALGetDataCoverageStatus(band_, window.x, window.y, window.width,
                                                     window.height, 0, nullptr);
        bool const hasGaps = (status & GDAL_DATA_COVERAGE_STATUS_EMPTY) != 0;
        return hasGaps && !(all && (status & GDAL_DATA_COVERAGE_STATUS_DATA) != 0);
    }

    /// What a sparse file leaves out has its no-data value, or else 0.
    bool isVoid(Window const& window) const {
        bool const hasNoData = (GDALGetMaskFlags(band_) & GMF_NODATA) != 0;
        return hasNoData && leavesOut(window, true);
    }

    bool isSparse() const { return leavesOut({0, 0, width(), height()}, false); }

    std::string name_;
    Dataset file_;
    Dataset resized_;  ///< over the file, or nothing
    int number_;
    GDALRasterBandH band_;  ///< part of one of the two
    double scale_;
    double offset_;
    bool isComplete_;   ///< whether every cell has data
    bool holdsFloats_;  ///< whether floats hold all values
};

/// Threads of GDAL's own have nobody who listens.
void keepQuiet() {
    CPLSetErrorHandler(CPLQuietErrorHandler);
}

/// What GDAL keeps of blocks that were read and of those to be written, unless
/// somebody has chosen for all programs: enough for a row of blocks.
void limitCache() {
    constexpr GIntBig Bytes = 80 << 20;
    if (CPLGetConfigOption("GDAL_CACHEMAX", nullptr) == nullptr)
        GDALSetCacheMax64(Bytes);
}

}  // namespace

}  // namespace workbench

/// The one export. The caller owns the grid.
extern "C" __attribute__((visibility("default"))) workbench::DataGrid* openGdalGrid(
    std::string const& name, int band, std::optional<workbench::Resize> const& resize) {
    static bool const ready =
        (GDALAllRegister(), workbench::keepQuiet(), workbench::limitCache(), true);
    static_cast<void>(ready);
    return new workbench::GdalGrid(name, band, resize);
}
