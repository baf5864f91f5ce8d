#include "workbench/platform/libraryFile.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <system_error>
#include <type_traits>

#include "workbench/platform/program.hpp"

namespace workbench {

namespace fs = std::filesystem;

namespace {

/// The headers of a file, read where they are asked for. What lies behind the end
/// of the file is 0.
class Headers {
public:
    explicit Headers(fs::path const& file) : stream_(file, std::ios::binary) {
        std::error_code error;
        size_ = fs::file_size(file, error);
        if (error)
            size_ = 0;
    }

    std::uint64_t size() const { return size_; }

    template <class Number>
    Number number(std::uint64_t offset) {
        Number value{};
        if (offset < size_ && size_ - offset >= sizeof value) {
            char bytes[sizeof value];
            stream_.seekg(static_cast<std::streamoff>(offset));
            stream_.read(bytes, sizeof bytes);
            std::memcpy(&value, bytes, sizeof value);
        }
        return value;
    }

private:
    std::ifstream stream_;
    std::uint64_t size_ = 0;
};

/// What there is to know of a library, whatever its format.
struct Facts {
    bool isLibrary = false;     ///< of this system's format and of 64 bits
    std::uint16_t machine = 0;  ///< the processor, by the format's number
    std::uint64_t end = 0;      ///< where the last segment ends in the file
};

#if defined(_WIN32)

constexpr std::uint16_t Magic = 0x5a4d;  // "MZ"

bool hasMagic(Headers& file) {
    return file.number<std::remove_const_t<decltype(Magic)>>(0) == Magic;
}

Facts factsOf(Headers& file) {
    constexpr std::uint32_t Signature = 0x4550;  // "PE"
    constexpr std::uint16_t Bits64 = 0x20b;      // the optional header's magic
    constexpr std::uint64_t SectionSize = 40;
    std::uint64_t const pe = file.number<std::uint32_t>(0x3c);
    Facts facts;
    facts.isLibrary = hasMagic(file) && file.number<std::uint32_t>(pe) == Signature &&
                      file.number<std::uint16_t>(pe + 24) == Bits64;
    if (!facts.isLibrary)
        return facts;
    facts.machine = file.number<std::uint16_t>(pe + 4);
    std::uint64_t const sections = pe + 24 + file.number<std::uint16_t>(pe + 20);
    std::uint64_t const count = file.number<std::uint16_t>(pe + 6);
    facts.end = sections + count * SectionSize;
    for (std::uint64_t i = 0; i < count; ++i) {
        std::uint64_t const section = sections + i * SectionSize;
        facts.end = std::max(facts.end, std::uint64_t{file.number<std::uint32_t>(section + 20)} +
                                            file.number<std::uint32_t>(section + 16));
    }
    return facts;
}

#else

constexpr std::uint32_t Magic = 0x464c457f;  // "\x7f" "ELF"

bool hasMagic(Headers& file) {
    return file.number<std::remove_const_t<decltype(Magic)>>(0) == Magic;
}

Facts factsOf(Headers& file) {
    constexpr std::uint8_t Bits64 = 2;
    constexpr std::uint16_t SharedObject = 3;
    constexpr std::uint32_t Loaded = 1;
    Facts facts;
    facts.isLibrary = hasMagic(file) && file.number<std::uint8_t>(4) == Bits64 &&
                      file.number<std::uint16_t>(16) == SharedObject;
    if (!facts.isLibrary)
        return facts;
    facts.machine = file.number<std::uint16_t>(18);
    std::uint64_t const segments = file.number<std::uint64_t>(32);
    std::uint64_t const size = file.number<std::uint16_t>(54);
    std::uint64_t const count = file.number<std::uint16_t>(56);
    facts.end = segments + count * size;
    for (std::uint64_t i = 0; i < count; ++i) {
        std::uint64_t const segment = segments + i * size;
        if (file.number<std::uint32_t>(segment) == Loaded)
            facts.end = std::max(facts.end, file.number<std::uint64_t>(segment + 8) +
                                                file.number<std::uint64_t>(segment + 32));
    }
    return facts;
}

#endif

/// The processor of the running program.
std::uint16_t ownMachine() {
    Headers program(programFile());
    return factsOf(program).machine;
}

}  // namespace

bool beginsAsLibrary(fs::path const& file) {
    Headers headers(file);
    return hasMagic(headers);
}

std::string libraryProblem(fs::path const& file) {
    Headers headers(file);
    Facts const facts = factsOf(headers);
    if (!facts.isLibrary)
        return "it is no 64-bit library of this system";
    if (facts.machine != ownMachine())
        return "it was built for another processor";
    if (facts.end > headers.size())
        return "it is cut off: " + std::to_string(headers.size()) + " bytes are there of " +
               std::to_string(facts.end) + " at least; copy or build it again";
    return {};
}

}  // namespace workbench
