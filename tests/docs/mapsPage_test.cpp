/// The page of all maps against what the program says and draws now.
#include "tests/docs/mapsPage.hpp"

#include <gmock/gmock.h>

#include <algorithm>

#include "tests/support/requiredEntries.hpp"
#include "workbench/common/files.hpp"

namespace tests {
namespace {

namespace fs = std::filesystem;

fs::path const root = PRISM_SOURCE_DIR;

constexpr char Remedy[] = "run scripts/document-maps";

std::string inDocuments(std::string const& name) {
    std::string bytes = workbench::readFile(root / "docs" / name);
    if (name.ends_with(".md"))
        std::erase(bytes, '\r');
    return bytes;
}

TEST(MapsPage, IsWhatTheProgramSaysAndDraws) {
    for (auto const& [name, bytes] : mapsPage(root)) {
        ASSERT_TRUE(fs::exists(root / "docs" / name)) << name << " is missing: " << Remedy;
        if (name.ends_with(".md"))
            EXPECT_EQ(inDocuments(name), bytes) << Remedy;
        else
            EXPECT_TRUE(inDocuments(name) == bytes) << name << " has changed: " << Remedy;
    }
}

TEST(MapsPage, HasNoPictureOfAMapThatIsGone) {
    auto const files = mapsPage(root);
    for (auto const& each : fs::directory_iterator(root / "docs/maps"))
        EXPECT_TRUE(files.contains("maps/" + each.path().filename().string()))
            << each.path().filename() << ": " << Remedy;
}

TEST(MapsPage, ShowsEveryRequiredEntry) {
    std::string const page = inDocuments("maps.md");
    for (std::string_view const key : requiredEntries)
        EXPECT_THAT(page, testing::HasSubstr("`" + std::string(key) + "`, from [`prism/"));
}

}  // namespace
}  // namespace tests
