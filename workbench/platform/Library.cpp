#include "workbench/platform/Library.hpp"

#include <string>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace workbench {

#if defined(_WIN32)

namespace {

/// In words of our own: those of the system depend on its language.
std::string lastReason() {
    DWORD const error = GetLastError();
    if (error == ERROR_BAD_EXE_FORMAT)
        return "it is no 64-bit library of this system";
    if (error == ERROR_MOD_NOT_FOUND)
        return "a library that it needs is missing";
    return "error " + std::to_string(error) + " of the system";
}

void* open(std::filesystem::path const& file) {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);  // no dialogue boxes
    return LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace

void* Library::symbol(char const* name) const {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

Library::~Library() {
    FreeLibrary(static_cast<HMODULE>(handle_));
}

#else

namespace {

std::string lastReason() {
    return dlerror();
}

void* open(std::filesystem::path const& file) {
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

}  // namespace

void* Library::symbol(char const* name) const {
    return dlsym(handle_, name);
}

Library::~Library() {
    dlclose(handle_);
}

#endif

Library::Library(std::filesystem::path const& file) : handle_(open(file)) {
    if (handle_ == nullptr)
        throw LibraryError(lastReason());
}

}  // namespace workbench
