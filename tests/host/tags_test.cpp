/// Which thread may call what, read from the headers of the contract.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tests {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

std::vector<fs::path> headers() {
    std::vector<fs::path> found;
    for (auto const& entry : fs::recursive_directory_iterator(fs::path(PRISM_SOURCES) / "host"))
        if (entry.path().extension() == ".hpp")
            found.push_back(entry.path());
    return found;
}

Lines linesOf(fs::path const& file) {
    Lines lines;
    std::ifstream source(file);
    for (std::string line; std::getline(source, line);)
        lines.push_back(line.substr(std::min(line.find_first_not_of(' '), line.size())));
    return lines;
}

constexpr char const* Tags[] = {"[loader]", "[host]", "[updater]", "[reader]", "[any]"};

bool hasTag(std::string const& line) {
    return std::ranges::any_of(
        Tags, [&](char const* tag) { return line.find(tag) != std::string::npos; });
}

bool endsWithTag(std::string const& line) {
    return std::ranges::any_of(Tags, [&](char const* tag) { return line.ends_with(tag); });
}

/// The last line of the description of a declaration, which it may share with
/// the declarations right above it; empty if there is none.
std::string descriptionEnd(Lines const& lines, std::size_t declaration) {
    for (std::size_t i = declaration; i-- > 0 && !lines[i].empty();)
        if (lines[i].starts_with("///"))
            return lines[i];
    return {};
}

TEST(ContractHeaders, EndTheDescriptionOfEachVirtualOperationWithAThreadTag) {
    int operations = 0;
    for (fs::path const& header : headers()) {
        Lines const lines = linesOf(header);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (!lines[i].starts_with("virtual ") || lines[i].starts_with("virtual ~"))
                continue;
            ++operations;
            EXPECT_TRUE(endsWithTag(descriptionEnd(lines, i)))
                << header << ":" << i + 1 << ": " << lines[i];
        }
    }
    EXPECT_GT(operations, 80);
}

TEST(ContractHeaders, WithThreadTagsLeadToTheirMeaning) {
    for (fs::path const& header : headers()) {
        if (header.filename() == "threads.hpp")
            continue;
        Lines const lines = linesOf(header);
        if (std::ranges::any_of(lines, hasTag)) {
            EXPECT_NE(std::ranges::find(lines, "#include \"host/pointers/threads.hpp\""),
                      lines.end())
                << header;
        }
    }
}

}  // namespace
}  // namespace tests
