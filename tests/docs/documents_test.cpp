/// What the documents promise about the tree that they stand in.
#include <gtest/gtest.h>

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
    EXPECT_TRUE(stream) << file.generic_string() << " cannot be read";
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<fs::path> documents() {
    std::vector<fs::path> found;
    for (fs::path const& folder : {root, root / "docs"})
        for (fs::directory_entry const& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".md")
                found.push_back(entry.path());
    return found;
}

/// The targets of all links and pictures in a text that lead to files.
std::vector<std::string> linkedFiles(std::string const& text) {
    static std::regex const link(R"(\]\(([^)#]+)(#[^)]*)?\))");
    std::vector<std::string> targets;
    for (std::sregex_iterator it(text.begin(), text.end(), link), end; it != end; ++it)
        if ((*it)[1].str().find("://") == std::string::npos)
            targets.push_back((*it)[1]);
    return targets;
}

TEST(Documents, LinkToFilesThatExist) {
    for (fs::path const& document : documents())
        for (std::string const& target : linkedFiles(textOf(document)))
            EXPECT_TRUE(fs::exists(document.parent_path() / target))
                << document.filename().generic_string() << " links to " << target;
}

TEST(Documents, AreShortEnoughToBeRead) {
    constexpr std::uintmax_t MaxBytes = 65536;
    for (fs::path const& document : documents())
        EXPECT_LE(fs::file_size(document), MaxBytes) << document.filename().generic_string();
}

/// The benchmarks run plug-ins, which write to standard output by themselves.
TEST(Documents, TakeNothingThatPlugInsSayForResults) {
    for (fs::path const& document : documents())
        EXPECT_EQ(textOf(document).find("\nwe have colors"), std::string::npos)
            << document.filename().generic_string();
}

/// The folders of the sources, such as "workbench/nodes": those that hold a
/// source or a header themselves.
std::set<std::string> sourceFolders() {
    std::set<std::string> found;
    for (char const* layer : {"entry", "host", "prism", "runtime", "workbench"})
        for (fs::directory_entry const& entry : fs::recursive_directory_iterator(root / layer))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".hpp")
                found.insert(entry.path().parent_path().lexically_relative(root).generic_string());
    return found;
}

TEST(Documents, NameEveryFolderOfTheSources) {
    std::string const text = textOf(root / "docs/architecture.md");
    for (std::string const& folder : sourceFolders())
        EXPECT_NE(text.find("| `" + folder + "`"), std::string::npos)
            << "the table of folders in docs/architecture.md lacks " << folder;
}

TEST(Documents, AreFound) {
    EXPECT_GE(documents().size(), 6U);
    EXPECT_FALSE(linkedFiles(textOf(root / "README.md")).empty());
}

TEST(Documents, ShowTheSampleMapAsItIsBuilt) {
    std::string const source = textOf(root / "docs/samples/Threshold.cpp");
    ASSERT_FALSE(source.empty());
    EXPECT_NE(textOf(root / "docs/new-map.md").find("```cpp\n" + source + "```\n"),
              std::string::npos)
        << "the code block in docs/new-map.md differs from docs/samples/Threshold.cpp";
}

}  // namespace
}  // namespace tests
