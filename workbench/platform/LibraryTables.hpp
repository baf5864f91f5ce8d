/// What the file of a library or a program says about itself.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace workbench {

/// The tables of a 64-bit ELF or PE file, read from the file. Throws
/// `std::runtime_error` for a file that is neither.
struct LibraryTables {
    explicit LibraryTables(std::filesystem::path const& file);

    enum Format { Elf, Pe };

    Format format = Elf;
    std::vector<std::string> exports;             ///< names, in the order of the table
    std::size_t exportedFunctions = 0;            ///< with those that have a number only
    std::vector<std::string> libraries;           ///< the libraries that it imports from
    std::vector<std::string> imports;             ///< the names that it imports; `#7` by number
    std::vector<std::string> runPaths;            ///< where it looks for them (ELF)
    std::vector<std::string> uniqueSymbols;       ///< names that would keep it loaded (ELF)
    std::map<std::string, std::string> sections;  ///< contents by name
    std::set<std::string> writable;               ///< the names of those that may be written to
    /// What protects the process, of "stack without code", "tables read-only" and "bound at
    /// once" (ELF); "data without code" and "large addresses" (PE); "any address".
    std::set<std::string> protections;

private:
    void readElf();
    void readElfSegments();
    void readElfDynamic(std::size_t offset, std::size_t size, std::size_t names);
    void readElfSymbols(std::size_t offset, std::size_t size, std::size_t names);
    void readPe();
    void readPeExports(std::size_t rva);
    void readPeImports(std::size_t rva);
    void readPeImportedNames(std::size_t rva);
    std::size_t peOffset(std::size_t rva) const;

    template <class Number>
    std::size_t number(std::size_t offset) const;
    std::string text(std::size_t offset) const;
    std::string bytes(std::size_t offset, std::size_t size) const;

    struct PeSection {
        std::size_t rva, size, offset;
    };

    std::string bytes_;
    std::vector<PeSection> peSections_;
};

}  // namespace workbench
