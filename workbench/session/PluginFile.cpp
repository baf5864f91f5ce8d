#include "workbench/session/PluginFile.hpp"

#include <array>
#include <string>

#include "workbench/common/paths.hpp"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace workbench {

namespace {

constexpr char ExportName[] = "TELM_API_2024_MAR_06__prism_tinctures";

#if defined(_WIN32)

void* openLibrary(std::filesystem::path const& file) {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);  // no dialogue boxes
    return LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

/// In words of our own: those of the system depend on its language.
std::string openError() {
    DWORD const error = GetLastError();
    if (error == ERROR_BAD_EXE_FORMAT)
        return "it is no 64-bit library of this system";
    if (error == ERROR_MOD_NOT_FOUND)
        return "a library that it needs is missing";
    return "error " + std::to_string(error) + " of the system";
}

void* findSymbol(void* library, char const* name) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void closeLibrary(void* library) {
    FreeLibrary(static_cast<HMODULE>(library));
}

std::filesystem::path programFile() {
    std::array<wchar_t, 32768> text{};
    GetModuleFileNameW(nullptr, text.data(), static_cast<DWORD>(text.size()));
    return text.data();
}

#else

void* openLibrary(std::filesystem::path const& file) {
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

std::string openError() {
    return dlerror();
}

void* findSymbol(void* library, char const* name) {
    return dlsym(library, name);
}

void closeLibrary(void* library) {
    dlclose(library);
}

std::filesystem::path programFile() {
    return std::filesystem::read_symlink("/proc/self/exe");
}

#endif

}  // namespace

PluginFile::PluginFile(std::filesystem::path const& file, Orlo::VInitialization& host)
    : path_(std::filesystem::absolute(file)) {
    std::string const name = "the plug-in '" + textOf(file) + "'";
    if (std::filesystem::is_directory(path_))
        throw PluginError(name + " is a folder; --plugin FILE names the library itself");
    if (!std::filesystem::is_regular_file(path_))
        throw PluginError(name + " does not exist; --plugin FILE names another");
    library_ = openLibrary(path_);
    if (library_ == nullptr)
        throw PluginError(name + " cannot be loaded as a library: " + openError());
    using Question = int (*)(Orlo::VInitialization*);
    auto const question = reinterpret_cast<Question>(findSymbol(library_, ExportName));
    if (question == nullptr) {
        closeLibrary(library_);
        throw PluginError(name +
                          " is a library, but not this kind of plug-in: it lacks the export " +
                          ExportName);
    }
    answer_ = question(&host);
    if (answer_ == Orlo::VInitialization::Incompatible) {
        closeLibrary(library_);
        throw PluginError("the host answers that " + name +
                          " is not compatible; build it against this host's interface");
    }
}

PluginFile::~PluginFile() {
    closeLibrary(library_);
}

std::filesystem::path pluginBesideProgram() {
    return programFile().parent_path() / "prism_tinctures.telm";
}

}  // namespace workbench
