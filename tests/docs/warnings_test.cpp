/// The table of warnings against the sources that print them.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace tests {
namespace {

namespace fs = std::filesystem;

fs::path const root = PRISM_SOURCE_DIR;

std::string textOf(fs::path const& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The sources that print for the plug-in, the contract and the host libraries,
/// without their comments.
std::vector<std::string> sources() {
    std::vector<std::string> found;
    for (char const* const folder : {"host", "runtime", "entry", "prism"})
        for (auto const& entry : fs::recursive_directory_iterator(root / folder))
            if (std::string const ending = entry.path().extension().string();
                ending == ".cpp" || ending == ".hpp")
                found.push_back(
                    std::regex_replace(textOf(entry.path()), std::regex("//[^\n]*"), ""));
    return found;
}

/// The texts in quotes of a call, what is between two of them as `%s`; texts that
/// stand side by side are one. Empty if the call has no text.
std::string joinedTexts(std::string const& call) {
    static std::regex const quoted(R"re("((?:[^"\\]|\\.)*)")re");
    std::string joined;
    std::size_t end = 0;
    for (std::sregex_iterator it(call.begin(), call.end(), quoted), last; it != last; ++it) {
        auto const start = static_cast<std::size_t>(it->position());
        std::string const between = call.substr(end, start - end);
        if (!joined.empty() && between.find_first_not_of(" \n") != std::string::npos)
            joined += "%s";
        joined += (*it)[1];
        end = start + static_cast<std::size_t>(it->length());
    }
    return joined;
}

/// The first text in quotes of a call, with those right behind it.
std::string firstText(std::string const& call) {
    std::string const all = call.substr(std::min(call.find('"'), call.size()));
    static std::regex const run(R"re(^("(?:[^"\\]|\\.)*"\s*)+)re");
    std::smatch match;
    return std::regex_search(all, match, run) ? joinedTexts(match.str()) : std::string();
}

/// Every line that is printed, as its format stands in the source.
std::set<std::string> printedTexts() {
    static std::regex const print(R"(\b(Vprintf|printf|fprintf|puts|fputs)\(([^;{]*);)");
    static std::regex const warning(R"(VActionNotifier::Warning\(([^;{]*);)");
    std::set<std::string> texts;
    auto const add = [&](std::string text) {
        if (text.ends_with("\\n"))
            text.resize(text.size() - 2);
        if (!text.empty())
            texts.insert(text);
    };
    for (std::string const& source : sources()) {
        for (std::sregex_iterator it(source.begin(), source.end(), print), end; it != end; ++it)
            add(firstText((*it)[2]));
        for (std::sregex_iterator it(source.begin(), source.end(), warning), end; it != end; ++it)
            add(joinedTexts((*it)[1]));
    }
    return texts;
}

/// The first cell of each row of the tables, and whether a row lacks a cell.
std::set<std::string> documentedTexts() {
    static std::regex const row(R"(\| `([^`]+)` \| ([^|]+) \| ([^|]+) \| ([^|]+) \|\n)");
    std::string const text = textOf(root / "docs/warnings.md");
    std::set<std::string> texts;
    for (std::sregex_iterator it(text.begin(), text.end(), row), end; it != end; ++it)
        texts.insert((*it)[1]);
    return texts;
}

TEST(Warnings, StandInTheTableEachWithItsCauseAndRemedyAndNoOthers) {
    EXPECT_THAT(documentedTexts(), testing::ContainerEq(printedTexts()));
    EXPECT_GE(printedTexts().size(), 15U);
}

TEST(Warnings, ArePrintedInNoWayThatTheTableIsNotHeldAgainst) {
    for (std::string const& source : sources())
        for (char const* const way :
             {"std::cout", "std::cerr", "std::clog", "std::print", "perror"}) {
            std::size_t const found = source.find(way);
            EXPECT_TRUE(found == std::string::npos ||
                        source.compare(found, std::string("std::printf").size(), "std::printf") ==
                            0)
                << source.substr(found, 60);
        }
}

}  // namespace
}  // namespace tests
