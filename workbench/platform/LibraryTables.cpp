#include "workbench/platform/LibraryTables.hpp"

#include <cstdint>
#include <cstring>
#include <stdexcept>

#include "workbench/common/files.hpp"

namespace workbench {

LibraryTables::LibraryTables(std::filesystem::path const& file) : bytes_(readFile(file)) {
    if (bytes_.starts_with("\x7f"
                           "ELF\x02\x01"))
        readElf();
    else if (bytes_.starts_with("MZ"))
        readPe();
    else
        throw std::runtime_error(file.string() + " is no 64-bit library");
}

template <class Number>
std::size_t LibraryTables::number(std::size_t offset) const {
    Number value{};
    if (offset > bytes_.size() || bytes_.size() - offset < sizeof value)
        throw std::runtime_error("the library file ends too early");
    std::memcpy(&value, bytes_.data() + offset, sizeof value);
    return static_cast<std::size_t>(value);
}

std::string LibraryTables::text(std::size_t offset) const {
    std::size_t const end = bytes_.find('\0', offset);
    if (end == std::string::npos)
        throw std::runtime_error("the library file ends within a text");
    return bytes_.substr(offset, end - offset);
}

std::string LibraryTables::bytes(std::size_t offset, std::size_t size) const {
    if (offset > bytes_.size())
        throw std::runtime_error("the library file ends too early");
    return bytes_.substr(offset, size);
}

// --- ELF

void LibraryTables::readElf() {
    constexpr std::size_t DynamicSection = 6, DynamicSymbols = 11, NoBits = 8, WriteFlag = 1;
    readElfSegments();
    std::size_t const table = number<std::uint64_t>(0x28);
    std::size_t const width = number<std::uint16_t>(0x3a), count = number<std::uint16_t>(0x3c);
    auto const header = [&](std::size_t index) { return table + index * width; };
    auto const offsetOf = [&](std::size_t index) {
        return number<std::uint64_t>(header(index) + 0x18);
    };
    std::size_t const names = offsetOf(number<std::uint16_t>(0x3e));
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t const type = number<std::uint32_t>(header(i) + 4);
        std::size_t const size = number<std::uint64_t>(header(i) + 0x20);
        std::size_t const texts = offsetOf(number<std::uint32_t>(header(i) + 0x28));
        std::string const name = text(names + number<std::uint32_t>(header(i)));
        if (type != NoBits)
            sections[name] = bytes(offsetOf(i), size);
        if ((number<std::uint64_t>(header(i) + 8) & WriteFlag) != 0)
            writable.insert(name);
        if (type == DynamicSection)
            readElfDynamic(offsetOf(i), size, texts);
        if (type == DynamicSymbols)
            readElfSymbols(offsetOf(i), size, texts);
    }
}

void LibraryTables::readElfSegments() {
    constexpr std::size_t SharedObject = 3, Stack = 0x6474e551, ReadOnlyLater = 0x6474e552,
                          Code = 1;
    if (number<std::uint16_t>(0x10) == SharedObject)
        protections.insert("any address");
    std::size_t const table = number<std::uint64_t>(0x20);
    std::size_t const width = number<std::uint16_t>(0x36), count = number<std::uint16_t>(0x38);
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t const type = number<std::uint32_t>(table + i * width);
        std::size_t const flags = number<std::uint32_t>(table + i * width + 4);
        if (type == Stack && (flags & Code) == 0)
            protections.insert("stack without code");
        if (type == ReadOnlyLater)
            protections.insert("tables read-only");
    }
}

void LibraryTables::readElfDynamic(std::size_t offset, std::size_t size, std::size_t names) {
    constexpr std::size_t Needed = 1, RPath = 15, RunPath = 29, Flags = 30, Now = 8;
    for (std::size_t at = offset; at < offset + size; at += 16) {
        std::size_t const tag = number<std::uint64_t>(at);
        std::size_t const value = number<std::uint64_t>(at + 8);
        if (tag == Needed)
            libraries.push_back(text(names + value));
        if (tag == Flags && (value & Now) != 0)
            protections.insert("bound at once");
        if (tag == RPath || tag == RunPath)
            runPaths.push_back(text(names + value));
    }
}

void LibraryTables::readElfSymbols(std::size_t offset, std::size_t size, std::size_t names) {
    constexpr std::size_t UniqueBinding = 10;
    for (std::size_t at = offset; at < offset + size; at += 24) {
        std::string const name = text(names + number<std::uint32_t>(at));
        std::size_t const binding = number<std::uint8_t>(at + 4) >> 4;
        bool const defined = number<std::uint16_t>(at + 6) != 0;
        if (defined && binding != 0)
            exports.push_back(name);
        if (!defined && !name.empty())
            imports.push_back(name);
        if (defined && binding == UniqueBinding)
            uniqueSymbols.push_back(name);
    }
    exportedFunctions = exports.size();
}

// --- PE

void LibraryTables::readPe() {
    format = Pe;
    constexpr std::size_t WriteFlag = 0x80000000;
    std::size_t const start = number<std::uint32_t>(0x3c);
    std::size_t const optional = start + 24;
    if (text(start) != "PE" || number<std::uint16_t>(optional) != 0x20b)
        throw std::runtime_error("the file is no 64-bit Windows library");
    std::size_t const protection = number<std::uint16_t>(optional + 70);
    if ((protection & 0x20U) != 0)
        protections.insert("large addresses");
    if ((protection & 0x40U) != 0)
        protections.insert("any address");
    if ((protection & 0x100U) != 0)
        protections.insert("data without code");
    std::size_t const count = number<std::uint16_t>(start + 6);
    std::size_t const table = optional + number<std::uint16_t>(start + 20);
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t const header = table + 40 * i;
        std::string const padded = bytes(header, 8);
        std::string const name = padded.substr(0, padded.find('\0'));
        PeSection const section{number<std::uint32_t>(header + 12),
                                number<std::uint32_t>(header + 16),
                                number<std::uint32_t>(header + 20)};
        peSections_.push_back(section);
        sections[name] = bytes(section.offset, section.size);
        if ((number<std::uint32_t>(header + 36) & WriteFlag) != 0)
            writable.insert(name);
    }
    readPeExports(number<std::uint32_t>(optional + 112));
    readPeImports(number<std::uint32_t>(optional + 120));
}

std::size_t LibraryTables::peOffset(std::size_t rva) const {
    for (PeSection const& section : peSections_)
        if (rva >= section.rva && rva - section.rva < section.size)
            return section.offset + (rva - section.rva);
    throw std::runtime_error("the library file names a place that it does not have");
}

void LibraryTables::readPeExports(std::size_t rva) {
    if (rva == 0)
        return;
    std::size_t const directory = peOffset(rva);
    exportedFunctions = number<std::uint32_t>(directory + 20);
    std::size_t const count = number<std::uint32_t>(directory + 24);
    std::size_t const names = peOffset(number<std::uint32_t>(directory + 32));
    for (std::size_t i = 0; i < count; ++i)
        exports.push_back(text(peOffset(number<std::uint32_t>(names + 4 * i))));
}

void LibraryTables::readPeImports(std::size_t rva) {
    if (rva == 0)
        return;
    for (std::size_t at = peOffset(rva); number<std::uint32_t>(at + 12) != 0; at += 20) {
        libraries.push_back(text(peOffset(number<std::uint32_t>(at + 12))));
        readPeImportedNames(number<std::uint32_t>(at));
    }
}

void LibraryTables::readPeImportedNames(std::size_t rva) {
    constexpr std::size_t ByNumber = std::size_t{1} << 63U;
    for (std::size_t at = peOffset(rva); number<std::uint64_t>(at) != 0; at += 8) {
        std::size_t const entry = number<std::uint64_t>(at);
        bool const hasName = (entry & ByNumber) == 0;
        imports.push_back(hasName ? text(peOffset(entry) + 2)
                                  : "#" + std::to_string(entry & 0xffffU));
    }
}

}  // namespace workbench
