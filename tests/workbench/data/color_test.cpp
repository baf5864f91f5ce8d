/// `telmbench color`: each cell has the colour that a lookup gives.
#include <cmath>
#include <limits>

#include "tests/workbench/cli/telmbench.hpp"
#include "tests/workbench/data/GridFile.hpp"
#include "tests/workbench/data/lookedUp.hpp"
#include "tests/workbench/picture/readPng.hpp"
#include "workbench/common/files.hpp"
#include "workbench/picture/png.hpp"

namespace {

using namespace tests;
using workbench::Image;
using workbench::Rgba8;

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr Rgba8 Transparent{0, 0, 0, 0};

Lines const WithPlace{"color.png", "color.png.aux.xml", "color.wld"};

/// The PNG file that the command makes of a grid, and what lies beside it; further
/// arguments stand behind.
Image color(std::string const& key, std::string const& grid, Lines const& more = {},
            Lines const& files = {"color.png"}) {
    TemporaryFolder const folder;
    Lines arguments{"color", key, grid, "-o", (folder / "color.png").string()};
    arguments.insert(arguments.end(), more.begin(), more.end());
    EXPECT_EQ(results(arguments), Lines{});
    EXPECT_EQ(folder.names(), files);
    std::optional<Image> const image = readPng(workbench::readFile(folder / "color.png"));
    EXPECT_TRUE(image);
    return image.value_or(Image(1, 1));
}

/// The same of a grid of these values.
Image colorOf(std::string const& key, Rows const& rows, Lines const& more = {}) {
    TemporaryFolder const folder;
    writeGeoTiff(folder / "grid.tif", {{rows}});
    return color(key, (folder / "grid.tif").string(), more);
}

TEST(Color, TheGridAndThePictureMayHaveAnyName) {
    TemporaryFolder const folder;
    std::string const name = "h\xc3\xb6he \xe6\xb7\xb1";
    writeGeoTiff(folder / (name + ".tif"), {{{{0, 1}}}});
    EXPECT_EQ(results({"color", "Glow", textOf(folder / (name + ".tif")), "-o",
                       textOf(folder / (name + ".png"))}),
              Lines{});
    EXPECT_EQ(folder.names(), (Lines{name + ".png", name + ".tif"}));
    EXPECT_TRUE(readPng(workbench::readFile(folder / (name + ".png"))));
}

TEST(Color, SpansTheMapOverTheRangeOfTheData) {
    Image const image = colorOf("Intensitymap", {{-2, -1, 0}, {1, 1.5, 2}});
    EXPECT_EQ(image.width(), 3);
    EXPECT_EQ(image.height(), 2);
    EXPECT_EQ(image.pixels(), lookup("Intensitymap", {"0", "0.25", "0.5", "0.75", "0.875", "1"}));
}

TEST(Color, TakesTheEndsOfTheRangeToTheEndsOfTheMapAndGoesOnBeyond) {
    Image const image =
        colorOf("Topographic", {{-1000, -500, 0, 500, 1000, 2000}}, {"--range", "0,1000"});
    EXPECT_EQ(image.pixels(), lookup("Topographic", {"-1", "-0.5", "0", "0.5", "1", "2"}));
    EXPECT_NE(image.at(0, 0), image.at(2, 0));
}

TEST(Color, TakesNegativeRanges) {
    Image const image = colorOf("Glow", {{-40, -30, -20}}, {"--range", "-40,-20"});
    EXPECT_EQ(image.pixels(), lookup("Glow", {"0", "0.5", "1"}));
}

TEST(Color, LeavesCellsWithoutDataTransparentAndOutOfTheRange) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "grid.asc", asciiGrid({{0, -9999, 4}, {-9999, 1, 2}}));
    Image const image = color("Hypsometric", (folder / "grid.asc").string(), {}, WithPlace);
    std::vector<Rgba8> const colors = lookup("Hypsometric", {"0", "1", "0.25", "0.5"});
    EXPECT_EQ(image.pixels(), (std::vector<Rgba8>{colors[0], Transparent, colors[1], Transparent,
                                                  colors[2], colors[3]}));
}

TEST(Color, LeavesInfinitiesOutOfTheRangeButPaintsThem) {
    Image const image = colorOf("Hypsometric", {{Infinity, 0, NoNumber, 1, -Infinity}});
    std::vector<Rgba8> const colors = lookup("Hypsometric", {"inf", "0", "1", "-inf"});
    EXPECT_EQ(image.pixels(),
              (std::vector<Rgba8>{colors[0], colors[1], Transparent, colors[2], colors[3]}));
}

TEST(Color, GivesAGridOfOneValueTheColorOfTheMiddle) {
    for (double const value : {0.0, -7.5, 1e300, 5e-324})
        EXPECT_EQ(colorOf("Glow", {{value, value}}).pixels(), lookup("Glow", {"0.5", "0.5"}))
            << value;
}

TEST(Color, SpansTheWholeRangeOfADouble) {
    constexpr double most = std::numeric_limits<double>::max();
    EXPECT_EQ(colorOf("Intensitymap", {{-most, 0, most}}).pixels(),
              lookup("Intensitymap", {"0", "0.5", "1"}));
}

TEST(Color, GivesAGridWithoutDataATransparentPictureIfTheRangeIsKnown) {
    EXPECT_EQ(colorOf("Glow", {{NoNumber, NoNumber}}, {"--range", "0,1"}).pixels(),
              (std::vector<Rgba8>{Transparent, Transparent}));
}

TEST(Color, SetsParametersBefore) {
    Image const image = colorOf("Hypsometric", {{0, 1}}, {"--set", "options=inverse"});
    EXPECT_EQ(image.pixels(), lookup("Hypsometric", {"0", "1"}, {"--set", "options=inverse"}));
    EXPECT_NE(image.pixels(), lookup("Hypsometric", {"0", "1"}));
}

TEST(Color, PaintsTheBandThatIsNamedInItsUnits) {
    TemporaryFolder const folder;
    writeGeoTiff(folder / "grid.tif", {{{{0, 1, 2}}}, {{{40, 0, 20}}, {}, 0.5, 100}});
    std::string const grid = (folder / "grid.tif").string();
    EXPECT_EQ(color("Glow", grid).pixels(), lookup("Glow", {"0", "0.5", "1"}));
    EXPECT_EQ(color("Glow", grid, {"--band", "2", "--range", "100,120"}).pixels(),
              lookup("Glow", {"1", "0", "0.5"}));
}

/// More than a million cells, so that there are several blocks of rows.
TEST(Color, PaintsEveryRowOfALargeGrid) {
    constexpr int width = 16384, height = 70;
    Rows rows;
    for (int y = 0; y < height; ++y)
        rows.emplace_back(width, y);
    Image const image = colorOf("Intensitymap", rows, {"--range", "0,128"});
    Lines values;
    for (int y = 0; y < height; ++y)
        values.push_back(std::to_string(y / 128.0));
    std::vector<Rgba8> const expected = lookup("Intensitymap", values);
    ASSERT_EQ(image.height(), height);
    for (int y = 0; y < height; ++y)
        for (int const x : {0, 1, width / 2, width - 1})
            EXPECT_EQ(image.at(x, y), expected[static_cast<std::size_t>(y)]) << x << ", " << y;
}

TEST(Color, PaintsTheExample) {
    Image const image =
        color("Topographic", PRISM_DATA_EXAMPLES "/hills.asc", {"--range", "0,1000"}, WithPlace);
    EXPECT_EQ(image.width(), 72);
    EXPECT_EQ(image.height(), 48);
    EXPECT_EQ(image.at(0, 0), Transparent);
    EXPECT_EQ(image.at(60, 36), lookup("Topographic", {"-1.523"}).front()) << "the bay";
    EXPECT_EQ(image.at(18, 14), lookup("Topographic", {"1.419"}).front()) << "the highest hill";
}

}  // namespace
