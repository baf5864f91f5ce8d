#include "workbench/data/GdalPicture.hpp"

#include <cpl_string.h>
#include <gdal_priv.h>

#include <algorithm>
#include <fstream>
#include <system_error>

#include "workbench/common/paths.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

constexpr int Channels = 4;

/// How GDAL writes a form.
struct Writer {
    PictureForm form;
    char const* name;
    char const* driver;
    int bands;  ///< without the fourth there is no transparency
    std::vector<char const*> options;
    char const* end;  ///< the last bytes of a whole file, where the form has such
    /// Cells that it takes, as it keeps the whole picture in memory; 0: all.
    std::int64_t maxCells = 0;
};

Writer const& writerOf(PictureForm form) {
    using enum PictureForm;
    static Writer const writers[] = {
        {GeoTiff, "GeoTIFF", "GTiff", 4, {"TILED=YES", "ALPHA=YES", "BIGTIFF=IF_SAFER"}, ""},
        {CloudOptimized,
         "cloud-optimised GeoTIFF",
         "COG",
         4,
         {"COMPRESS=DEFLATE", "NUM_THREADS=ALL_CPUS", "BIGTIFF=IF_SAFER"},
         ""},
        {Png, "PNG", "PNG", 4, {"WORLDFILE=YES"}, "IEND\xAE\x42\x60\x82"},
        {Jpeg, "JPEG", "JPEG", 3, {"WORLDFILE=YES", "QUALITY=95"}, "\xFF\xD9", 40'000'000},
        {WebP, "WebP", "WEBP", 4, {"LOSSLESS=YES", "EXACT=YES"}, "", 4'000'000},
    };
    return *std::ranges::find(writers, form, &Writer::form);
}

[[noreturn]] void fail(PictureOrder const& order, std::string const& reason) {
    constexpr std::uintmax_t Little = 1 << 16;
    std::error_code error;
    fs::space_info const room = fs::space(order.file.parent_path(), error);
    bool const isFull = !error && room.available < Little;
    throw WorkError("cannot write the picture: " + (isFull ? "the disk is full" : reason));
}

GDALDriverH driverOf(Writer const& writer) {
    if (GDALDriverH const driver = GDALGetDriverByName(writer.driver))
        return driver;
    throw WorkError(std::string("this GDAL writes no ") + writer.name +
                    "; choose another ending, such as .tif");
}

/// The place on the earth and the metadata of one dataset for another.
void describe(GDALDataset& target, GDALDataset& source, PictureOrder const& order) {
    double transform[6];
    if (source.GetGeoTransform(transform) == CE_None)
        target.SetGeoTransform(transform);
    if (OGRSpatialReference const* const system = source.GetSpatialRef())
        target.SetSpatialRef(system);
    if (source.GetGCPCount() > 0)
        target.SetGCPs(source.GetGCPCount(), source.GetGCPs(), source.GetGCPSpatialRef());
    for (char const* const domain : {"", "RPC"})
        if (char** const metadata = source.GetMetadata(domain))
            target.SetMetadata(metadata, domain);
    for (std::string const& note : order.notes) {
        std::size_t const sign = note.find('=');
        target.SetMetadataItem(note.substr(0, sign).c_str(), note.substr(sign + 1).c_str());
    }
}

/// Rows of tiles of a bounded size, as a row of them is in memory while it is
/// filled.
int tileHeight(int width) {
    constexpr int MaxBytes = 32 << 20;
    int height = 256;
    while (height > 16 && width > MaxBytes / (Channels * height))
        height /= 2;
    return height;
}

/// A GeoTIFF is made window by window; windows without pixels are left out.
void writeTiff(PictureSource const& source, PictureOrder const& order, fs::path const& file,
               PixelSource& pixels, Progressing const& progress) {
    auto& grid = *GDALDataset::FromHandle(source.dataset);
    int const width = grid.GetRasterXSize();
    CPLStringList options;
    for (char const* const option : writerOf(PictureForm::GeoTiff).options)
        options.AddString(option);
    options.SetNameValue("BLOCKXSIZE", "256");
    options.SetNameValue("BLOCKYSIZE", std::to_string(tileHeight(width)).c_str());
    options.SetNameValue("SPARSE_OK", source.isSparse ? "TRUE" : "FALSE");
    Complaints const complaints;
    Dataset picture(GDALCreate(driverOf(writerOf(PictureForm::GeoTiff)), textOf(file).c_str(),
                               width, grid.GetRasterYSize(), Channels, GDT_Byte, options.List()));
    if (!picture)
        fail(order, complaints.text());
    describe(*GDALDataset::FromHandle(picture.get()), grid, order);
    double done = 0;
    for (Window const& window : source.windows) {
        if (progress)
            progress(done / grid.GetRasterXSize() / grid.GetRasterYSize());
        std::span<Rgba8 const> const from = pixels.next();
        done += double(window.size());
        if (from.empty())
            continue;
        auto* const bytes = const_cast<Rgba8*>(from.data());  // which is only read
        if (GDALDatasetRasterIO(picture.get(), GF_Write, window.x, window.y, window.width,
                                window.height, bytes, window.width, window.height, GDT_Byte,
                                Channels, nullptr, Channels, Channels * window.width, 1) != CE_None)
            fail(order, complaints.text());
    }
    picture.reset();
    if (complaints.failed())
        fail(order, complaints.text());
}

/// Adds smaller copies of a GeoTIFF to it, each half as wide as the one before,
/// until one is small. The writer of cloud-optimised ones makes them in more memory.
void addOverviews(PictureOrder const& order, Passage& passage) {
    constexpr int Small = 512;
    Complaints const complaints;
    Dataset const picture(GDALOpen(textOf(order.scratch).c_str(), GA_Update));
    if (!picture)
        fail(order, complaints.text());
    std::vector<int> factors;
    int const side = std::max(GDALGetRasterXSize(picture.get()), GDALGetRasterYSize(picture.get()));
    for (int factor = 2; side / factor >= Small / 2; factor *= 2)
        factors.push_back(factor);
    bool const done =
        factors.empty() ||
        GDALBuildOverviews(picture.get(), "NEAREST", static_cast<int>(factors.size()),
                           factors.data(), 0, nullptr, Passage::progress, &passage) == CE_None;
    passage.goOn();
    if (!done || complaints.failed())
        fail(order, complaints.text());
}

/// A picture for those writers of GDAL that copy another dataset from its top to
/// its bottom: it asks for pixels as its rows are asked for.
class PulledPicture : public GDALDataset {
public:
    PulledPicture(PictureSource const& source, PictureOrder const& order, PixelSource& pixels,
                  Passage& passage, int bands)
        : grid_(*GDALDataset::FromHandle(source.dataset)),
          windows_(source.windows),
          pixels_(pixels),
          passage_(passage) {
        nRasterXSize = grid_.GetRasterXSize();
        nRasterYSize = grid_.GetRasterYSize();
        for (int number = 1; number <= bands; ++number)
            SetBand(number, new Channel(*this, number));
        if (!hasPlace())  // nothing that were worth a file beside the picture
            return;
        if (char** const metadata = grid_.GetMetadata())
            SetMetadata(metadata);
        for (std::string const& note : order.notes) {
            std::size_t const sign = note.find('=');
            SetMetadataItem(note.substr(0, sign).c_str(), note.substr(sign + 1).c_str());
        }
    }

    CPLErr GetGeoTransform(double* transform) override { return grid_.GetGeoTransform(transform); }
    OGRSpatialReference const* GetSpatialRef() const override { return grid_.GetSpatialRef(); }
    int GetGCPCount() override { return grid_.GetGCPCount(); }
    GDAL_GCP const* GetGCPs() override { return grid_.GetGCPs(); }
    OGRSpatialReference const* GetGCPSpatialRef() const override {
        return grid_.GetGCPSpatialRef();
    }

private:
    /// One of the components, a row as a block.
    class Channel : public GDALRasterBand {
    public:
        Channel(PulledPicture& picture, int number) : picture_(picture) {
            poDS = &picture;
            nBand = number;
            eDataType = GDT_Byte;
            nBlockXSize = picture.nRasterXSize;
            nBlockYSize = 1;
        }

        GDALColorInterp GetColorInterpretation() override {
            constexpr GDALColorInterp all[] = {GCI_RedBand, GCI_GreenBand, GCI_BlueBand,
                                               GCI_AlphaBand};
            return all[nBand - 1];
        }

    protected:
        CPLErr IReadBlock(int, int y, void* target) override {
            return picture_.read({0, y, nBlockXSize, 1}, nBand, static_cast<std::uint8_t*>(target),
                                 1)
                       ? CE_None
                       : CE_Failure;
        }

    private:
        PulledPicture& picture_;
    };

    bool hasPlace() {
        double transform[6];
        return grid_.GetGeoTransform(transform) == CE_None || grid_.GetSpatialRef() != nullptr ||
               grid_.GetGCPCount() > 0;
    }

    /// Whole pixels as they come, where GDAL asks by bands if it is left to itself.
    CPLErr IRasterIO(GDALRWFlag flag, int x, int y, int width, int height, void* target,
                     int targetWidth, int targetHeight, GDALDataType type, int bands, int* numbers,
                     GSpacing pixelStep, GSpacing rowStep, GSpacing bandStep,
                     GDALRasterIOExtraArg* more) override {
        if (flag != GF_Read || width != targetWidth || height != targetHeight || type != GDT_Byte)
            return GDALDataset::IRasterIO(flag, x, y, width, height, target, targetWidth,
                                          targetHeight, type, bands, numbers, pixelStep, rowStep,
                                          bandStep, more);
        for (int row = 0; row < height; ++row)
            for (int i = 0; i < bands; ++i)
                if (!read({x, y + row, width, 1}, numbers[i],
                          static_cast<std::uint8_t*>(target) + row * rowStep + i * bandStep,
                          pixelStep))
                    return CE_Failure;
        return CE_None;
    }

    /// Fills in one component of the part of a row.
    bool read(Window const& part, int number, std::uint8_t* target, GSpacing step) {
        if (!passage_.through([&] { goTo(part.y); }))
            return false;
        bool const isOpaque = nBands < Channels;  // white, where nothing can be transparent
        std::uint8_t const hidden = isOpaque ? 255 : 0;
        auto const first =
            static_cast<std::size_t>(nRasterXSize) * static_cast<std::size_t>(part.y - top_) +
            static_cast<std::size_t>(part.x);
        auto const component = static_cast<std::size_t>(number - 1);
        for (std::size_t i = 0; i < part.size(); ++i, target += step)
            *target = rows_.empty() || (isOpaque && rows_[first + i][3] == 0)
                          ? hidden
                          : rows_[first + i][component];
        return true;
    }

    void goTo(int y) {
        if (y < top_)
            throw WorkError("cannot write the picture: GDAL asks for a row twice");
        for (; y >= end_; ++window_) {
            Window const& window = windows_.at(window_);
            rows_ = pixels_.next();
            top_ = window.y;
            end_ = window.y + window.height;
        }
    }

    GDALDataset& grid_;
    std::vector<Window> const& windows_;
    PixelSource& pixels_;
    Passage& passage_;
    std::size_t window_ = 0;  ///< the next one
    std::span<Rgba8 const> rows_;
    int top_ = 0;  ///< the rows that are at hand
    int end_ = 0;
};

/// Has GDAL copy a dataset into a file of that form.
void copy(GDALDatasetH from, PictureOrder const& order, Passage& passage) {
    Writer const& writer = writerOf(order.form);
    CPLStringList options;
    for (char const* const option : writer.options)
        options.AddString(option);
    Complaints const complaints;
    Dataset const picture(GDALCreateCopy(driverOf(writer), textOf(order.file).c_str(), from, FALSE,
                                         options.List(), Passage::progress, &passage));
    passage.goOn();
    if (!picture || complaints.failed())
        fail(order, complaints.text());
}

/// The length that a file in RIFF, as WebP's is, tells of itself.
std::uintmax_t toldLength(std::ifstream& stream) {
    constexpr std::uintmax_t Head = 8;  // "RIFF" and the length of what follows
    char bytes[Head] = {};
    stream.seekg(0).read(bytes, Head);
    std::uintmax_t length = 0;
    for (std::size_t i = Head; i-- > 4;)
        length = length << 8 | static_cast<unsigned char>(bytes[i]);
    return Head + length;
}

/// Some writers do not notice that the last bytes find no room.
void checkEnd(PictureOrder const& order) {
    std::string const end = writerOf(order.form).end;
    std::ifstream stream(order.file, std::ios::binary);
    stream.seekg(-static_cast<std::streamoff>(end.size()), std::ios::end);
    std::string found(end.size(), ' ');
    stream.read(found.data(), static_cast<std::streamsize>(found.size()));
    bool const isWhole =
        order.form != PictureForm::WebP || toldLength(stream) == fs::file_size(order.file);
    if (!stream || found != end || !isWhole)
        fail(order, "its end is missing");
}

void checkSize(PictureSource const& source, PictureOrder const& order) {
    Writer const& writer = writerOf(order.form);
    auto& grid = *GDALDataset::FromHandle(source.dataset);
    std::int64_t const cells = std::int64_t{grid.GetRasterXSize()} * grid.GetRasterYSize();
    if (writer.maxCells != 0 && cells > writer.maxCells)
        throw WorkError(std::string(writer.name) + " is written from memory, and so for up to " +
                        std::to_string(writer.maxCells) +
                        " cells; use .tif or .png, or --resize the grid");
}

}  // namespace

bool isMadeOfRows(PictureForm form) {
    return form != PictureForm::GeoTiff && form != PictureForm::CloudOptimized;
}

void writePicture(PictureSource const& source, PictureOrder const& order, PixelSource& pixels,
                  Progressing const& progress) {
    driverOf(writerOf(order.form));
    checkSize(source, order);
    Passage passage(progress);
    if (order.form == PictureForm::GeoTiff) {
        writeTiff(source, order, order.file, pixels, progress);
    } else if (order.form == PictureForm::CloudOptimized) {
        writeTiff(source, order, order.scratch, pixels, progress);
        addOverviews(order, passage);
        Dataset const painted(GDALOpen(textOf(order.scratch).c_str(), GA_ReadOnly));
        if (!painted)
            fail(order, "what was painted cannot be read again");
        copy(painted.get(), order, passage);
    } else {
        PulledPicture picture(source, order, pixels, passage, writerOf(order.form).bands);
        copy(GDALDataset::ToHandle(&picture), order, passage);
    }
    checkEnd(order);
}

}  // namespace workbench
