#include "workbench/platform/Library.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#include <link.h>
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

std::vector<std::string> Library::exports() const {
    auto const* const start = static_cast<std::byte const*>(handle_);
    auto const at = [&](std::uint64_t offset) { return start + offset; };
    auto const* const dos = reinterpret_cast<IMAGE_DOS_HEADER const*>(start);
    auto const* const headers =
        reinterpret_cast<IMAGE_NT_HEADERS64 const*>(at(static_cast<DWORD>(dos->e_lfanew)));
    DWORD const offset =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
    if (offset == 0)
        return {};
    auto const* const directory = reinterpret_cast<IMAGE_EXPORT_DIRECTORY const*>(at(offset));
    auto const* const names = reinterpret_cast<DWORD const*>(at(directory->AddressOfNames));
    std::vector<std::string> found;
    for (DWORD i = 0; i < directory->NumberOfNames; ++i)
        found.emplace_back(reinterpret_cast<char const*>(at(names[i])));
    return found;
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

namespace {

/// The tables of a loaded library that tell its symbols.
struct Tables {
    explicit Tables(link_map const& library) {
        for (ElfW(Dyn) const* each = library.l_ld; each->d_tag != DT_NULL; ++each) {
            // The loader has made addresses of what were offsets, on most processors.
            auto const value = each->d_un.d_ptr;
            auto const address = value < library.l_addr ? value + library.l_addr : value;
            if (each->d_tag == DT_SYMTAB)
                symbols = reinterpret_cast<ElfW(Sym) const*>(address);
            if (each->d_tag == DT_STRTAB)
                names = reinterpret_cast<char const*>(address);
            if (each->d_tag == DT_GNU_HASH)
                gnuHash = reinterpret_cast<std::uint32_t const*>(address);
            if (each->d_tag == DT_HASH)
                hash = reinterpret_cast<std::uint32_t const*>(address);
        }
    }

    /// The symbols are counted by their hash table only. The newer one has, for each of
    /// its chains, the first symbol, and marks the last one by an odd number.
    std::size_t count() const {
        if (symbols == nullptr || names == nullptr)
            return 0;
        if (hash != nullptr)
            return hash[1];
        if (gnuHash == nullptr)
            return 0;
        std::uint32_t const chains = gnuHash[0], firstHashed = gnuHash[1], words = gnuHash[2];
        std::uint32_t const* const firsts = gnuHash + 4 + words * sizeof(ElfW(Addr)) / 4;
        std::uint32_t const* const marks = firsts + chains;
        std::uint32_t last = *std::max_element(firsts, firsts + chains);
        if (last < firstHashed)
            return firstHashed;
        while ((marks[last - firstHashed] & 1U) == 0)
            ++last;
        return std::size_t{last} + 1;
    }

    ElfW(Sym) const* symbols = nullptr;
    char const* names = nullptr;
    std::uint32_t const* gnuHash = nullptr;
    std::uint32_t const* hash = nullptr;
};

}  // namespace

std::vector<std::string> Library::exports() const {
    link_map const* library = nullptr;
    if (dlinfo(handle_, RTLD_DI_LINKMAP, &library) != 0)
        return {};
    Tables const tables(*library);
    std::vector<std::string> found;
    for (std::size_t i = 0; i < tables.count(); ++i) {
        ElfW(Sym) const& symbol = tables.symbols[i];
        if (symbol.st_shndx != SHN_UNDEF && ELF64_ST_BIND(symbol.st_info) != STB_LOCAL)
            found.emplace_back(tables.names + symbol.st_name);
    }
    return found;
}

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
