/// Grids read through GDAL: a library of its own, which `openGrid` loads.
#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>
#include <gdal.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <system_error>
#include <vector>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/data/DataGrid.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

/// Keeps GDAL's own lines off standard error; its last complaint can be asked
/// for all the same.
class Quiet {
public:
    Quiet() {
        CPLPushErrorHandler(CPLQuietErrorHandler);
        CPLErrorReset();
    }
    Quiet(Quiet const&) = delete;
    Quiet& operator=(Quiet const&) = delete;
    ~Quiet() { CPLPopErrorHandler(); }

    static std::string complaint() {
        std::string const text = CPLGetLastErrorMsg();
        return text.empty() ? "GDAL gives no reason" : text;
    }
};

struct Closer {
    void operator()(void* dataset) const noexcept { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<void, Closer>;

[[noreturn]] void fail(std::string const& name, std::string const& reason) {
    throw WorkError("cannot read " + inQuotes(name, 1000) + ": " + reason);
}

/// Why GDAL opens nothing under that name.
std::string openProblem(std::string const& name) {
    std::string const complaint = Quiet::complaint();
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
    Dataset dataset(GDALOpenEx(name.c_str(), GDAL_OF_RASTER | GDAL_OF_VERBOSE_ERROR, nullptr,
                               nullptr, nullptr));
    if (!dataset)
        fail(name, openProblem(name));
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

class GdalGrid : public DataGrid {
public:
    GdalGrid(std::string const& name, int number)
        : name_(name),
          dataset_(open(name)),
          band_(findBand(dataset_, name, number)),
          scale_(told(GDALGetRasterScale, band_, 1.0)),
          offset_(told(GDALGetRasterOffset, band_, 0.0)),
          complete_((GDALGetMaskFlags(band_) & GMF_ALL_VALID) != 0) {}

    int width() const override { return GDALGetRasterBandXSize(band_); }
    int height() const override { return GDALGetRasterBandYSize(band_); }

    std::vector<fs::path> files() const override {
        char** const names = GDALGetFileList(dataset_.get());
        std::vector<fs::path> all;
        for (char** name = names; name != nullptr && *name != nullptr; ++name)
            all.push_back(pathOf(*name));
        CSLDestroy(names);
        return all;
    }

    void read(int first, std::span<double> values) override {
        Quiet const quiet;
        transfer(band_, first, values.data(), values.size(), GDT_Float64);
        if (scale_ != 1.0 || offset_ != 0.0)
            for (double& value : values)
                value = value * scale_ + offset_;
        if (!complete_)
            leaveOutMasked(first, values);
    }

private:
    void transfer(GDALRasterBandH from, int first, void* target, std::size_t cells,
                  GDALDataType type) const {
        int const rows = static_cast<int>(cells / static_cast<std::size_t>(width()));
        if (GDALRasterIO(from, GF_Read, 0, first, width(), rows, target, width(), rows, type, 0,
                         0) != CE_None)
            fail(name_, Quiet::complaint());
    }

    /// The mask of a band knows of no-data values, of alpha and of masks beside
    /// the data alike.
    void leaveOutMasked(int first, std::span<double> values) const {
        std::vector<std::uint8_t> valid(values.size());
        transfer(GDALGetMaskBand(band_), first, valid.data(), valid.size(), GDT_Byte);
        for (std::size_t i = 0; i < valid.size(); ++i)
            if (valid[i] == 0)
                values[i] = std::numeric_limits<double>::quiet_NaN();
    }

    std::string name_;
    Dataset dataset_;
    GDALRasterBandH band_;  ///< part of the dataset
    double scale_;
    double offset_;
    bool complete_;  ///< whether every cell has data
};

}  // namespace

}  // namespace workbench

/// The one export. The caller owns the grid.
extern "C" __attribute__((visibility("default"))) workbench::DataGrid* openGdalGrid(
    std::string const& name, int band) {
    static bool const ready = (GDALAllRegister(), true);
    static_cast<void>(ready);
    workbench::Quiet const quiet;
    return new workbench::GdalGrid(name, band);
}
