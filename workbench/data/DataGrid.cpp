#include "workbench/data/DataGrid.hpp"

#include "workbench/common/errors.hpp"

#if PRISM_GDAL
#include <dlfcn.h>

#include "workbench/session/PluginFile.hpp"
#endif

namespace workbench {

#if PRISM_GDAL

namespace {

using Opener = DataGrid* (*)(std::string const& name, int band);

/// The reader lies in a library beside the program, which is loaded when it is
/// needed and stays: GDAL brings a hundred libraries, which would make every
/// command start late.
Opener loadReader() {
    auto const file = pluginBesideProgram().replace_filename("telmbench_gdal.so");
    void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const opener = library != nullptr ? dlsym(library, "openGdalGrid") : nullptr;
    if (opener == nullptr)
        throw WorkError(std::string("the reader of grids cannot be loaded: ") + dlerror() +
                        "; it belongs beside the program, and GDAL has to be installed");
    return reinterpret_cast<Opener>(opener);
}

}  // namespace

bool readsGrids() noexcept {
    return true;
}

std::unique_ptr<DataGrid> openGrid(std::string const& name, int band) {
    static Opener const open = loadReader();
    return std::unique_ptr<DataGrid>(open(name, band));
}

#else

bool readsGrids() noexcept {
    return false;
}

std::unique_ptr<DataGrid> openGrid(std::string const&, int) {
    throw WorkError(
        "this build of telmbench has no GDAL, without which it reads no grids; use a Linux build "
        "made where GDAL is installed (Debian: libgdal-dev)");
}

#endif

}  // namespace workbench
