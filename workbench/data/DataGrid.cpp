#include "workbench/data/DataGrid.hpp"

#include "workbench/common/errors.hpp"

#if PRISM_GDAL
#include "workbench/platform/Library.hpp"
#include "workbench/platform/program.hpp"
#endif

namespace workbench {

#if PRISM_GDAL

namespace {

using Opener = DataGrid* (*)(std::string const& name, int band,
                             std::optional<Resize> const& resize);

/// The reader lies in a library beside the program, which is loaded when it is
/// needed and stays: GDAL brings a hundred libraries, which would make every
/// command start late.
Opener loadReader() {
    constexpr char Export[] = "openGdalGrid";
    try {
        static Library const& library = *new Library(fileBesideProgram("telmbench_gdal.so"));
        if (auto const opener = library.find<Opener>(Export))
            return opener;
        throw LibraryError(std::string("it lacks the export ") + Export);
    } catch (LibraryError const& error) {
        throw WorkError(std::string("the reader of grids cannot be loaded: ") + error.what() +
                        "; it belongs beside the program, and GDAL has to be installed");
    }
}

}  // namespace

bool readsGrids() noexcept {
    return true;
}

std::unique_ptr<DataGrid> openGrid(std::string const& name, int band,
                                   std::optional<Resize> const& resize) {
    static Opener const open = loadReader();
    return std::unique_ptr<DataGrid>(open(name, band, resize));
}

#else

bool readsGrids() noexcept {
    return false;
}

std::unique_ptr<DataGrid> openGrid(std::string const&, int, std::optional<Resize> const&) {
    throw WorkError(
        "this build of telmbench has no GDAL, without which it reads no grids; use a Linux build "
        "made where GDAL is installed (Debian: libgdal-dev)");
}

#endif

}  // namespace workbench
