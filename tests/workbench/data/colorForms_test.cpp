/// `telmbench color`: the forms of pictures, where they lie on the earth, and what
/// else can be asked for.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <numbers>
#include <regex>
#include <tuple>

#include "tests/support/sanitizers.hpp"
#include "tests/workbench/data/GridFile.hpp"
#include "tests/workbench/data/Painted.hpp"
#include "tests/workbench/data/lookedUp.hpp"
#include "tests/workbench/picture/readPng.hpp"
#include "workbench/common/files.hpp"

namespace {

using namespace tests;
using workbench::Rgba8;
namespace fs = std::filesystem;

constexpr Rgba8 Transparent{0, 0, 0, 0};
constexpr Rgba8 White{255, 255, 255, 255};

std::string shortest(double value) {
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

/// Paints a grid of the folder into another file of it.
void paint(TemporaryFolder const& folder, std::string const& key, std::string const& grid,
           std::string const& picture, Lines const& more = {}) {
    Lines arguments{"color", key, textOf(folder / grid), "-o", textOf(folder / picture)};
    arguments.insert(arguments.end(), more.begin(), more.end());
    EXPECT_EQ(results(arguments), Lines{});
}

/// The scalars of a map, for values that go to 0 to 1 from such a range.
Lines scalars(std::vector<double> const& values, double min, double max) {
    Lines texts;
    for (double const value : values)
        texts.push_back(shortest((value * 0.5 - min * 0.5) / (max * 0.5 - min * 0.5)));
    return texts;
}

struct TypeCase {
    char const* type;
    std::vector<double> values;  ///< all of them are the type's
};

/// Every kind of cell that a raster has, and values that a smaller kind has not.
TypeCase const types[] = {
    {"Byte", {0, 1, 5, 64, 127, 128, 200, 255}},
    {"UInt16", {0, 1, 5, 64, 127, 128, 200, 65535}},
    {"Int16", {-32768, -1, 0, 5, 64, 128, 200, 32767}},
    {"UInt32", {0, 1, 64, 128, 16777216, 16777217, 4294967294, 4294967295}},
    {"Int32", {-2147483648, -16777217, -1, 0, 64, 16777216, 16777217, 2147483647}},
    {"Float32", {-0.5, 0.1F, 1.0F / 3, 64, 127.99999F, 128, 1e30F, -1e-30F}},
    {"Float64", {-0.5, 0.1, 1.0 / 3, 64, 127.99999999999, 128, 1e300, -1e-300}},
};

class ColorOfType : public testing::TestWithParam<TypeCase> {
protected:
    /// Paints the values over a wide range, and over one of neighbours; expects those of `shown`,
    /// and transparent cells where `holes` says so.
    void expectColors(Band band, std::vector<double> const& shown,
                      std::vector<bool> const& holes = std::vector<bool>(8, false)) {
        TemporaryFolder const folder;
        band.rows = {{GetParam().values.begin(), GetParam().values.begin() + 4},
                     {GetParam().values.begin() + 4, GetParam().values.end()}};
        writeGeoTiff(folder / "grid.tif", {band}, {GetParam().type});
        for (auto const& [name, min, max] :
             {std::tuple("new.tif", 0.0, 128.0), std::tuple("new.png", 16777216.0, 16777218.0)}) {
            std::vector<Rgba8> expected = lookup("RedGreen", scalars(shown, min, max));
            for (std::size_t i = 0; i < expected.size(); ++i)
                if (holes[i])
                    expected[i] = Transparent;
            paint(folder, "RedGreen", "grid.tif", name,
                  {"--range", shortest(min) + "," + shortest(max)});
            EXPECT_EQ(readPainted(folder / name).pixels, expected) << name;
        }
    }
};

TEST_P(ColorOfType, IsThatOfALookupOfEachCell) {
    expectColors({}, GetParam().values);
}

TEST_P(ColorOfType, IsNoneOfNoDataValues) {
    Band band;
    band.noData = GetParam().values[3];
    expectColors(band, GetParam().values, {false, false, false, true, false, false, false, false});
}

TEST_P(ColorOfType, IsNoneBehindAMask) {
    Band band;
    band.mask = {{255, 0, 255, 255}, {0, 255, 255, 0}};
    expectColors(band, GetParam().values, {false, true, false, false, true, false, false, true});
}

TEST_P(ColorOfType, IsThatOfTheValuesInTheirUnits) {
    std::vector<double> units;
    for (double const value : GetParam().values)
        units.push_back(value * 0.25 - 3.0);
    Band band;
    band.scale = 0.25;
    band.offset = -3.0;
    band.noData = GetParam().values[0];
    expectColors(band, units, {true, false, false, false, false, false, false, false});
}

std::string typeOf(testing::TestParamInfo<TypeCase> const& info) {
    return info.param.type;
}

INSTANTIATE_TEST_SUITE_P(Types, ColorOfType, testing::ValuesIn(types), typeOf);

/// A grid that lies somewhere.
void writePlaced(fs::path const& file, Rows const& rows) {
    writeGeoTiff(file, {{rows, -1.0}},
                 {"Float32", {{500'000, 30, 0, 4'200'000, 0, -20}}, 32633, {{"SURVEY", "1999"}}});
}

TEST(ColorForms, KeepThePlaceOnTheEarthAndTheMetadata) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", {{0, 1, 2}, {3, 4, -1}});
    struct {
        char const* name;
        Lines more;
    } const table[] = {{"new.tif", {}}, {"new.tiff", {}}, {"cog.tif", {"--cog"}}, {"new.png", {}},
                       {"new.PNG", {}}, {"new.jpg", {}},  {"new.jpeg", {}},       {"new.webp", {}}};
    for (auto const& each : table) {
        SCOPED_TRACE(each.name);
        paint(folder, "Hypsometric", "grid.tif", each.name, each.more);
        Painted const painted = readPainted(folder / each.name);
        EXPECT_EQ(painted.width, 3);
        EXPECT_EQ(painted.height, 2);
        EXPECT_EQ(painted.transform, (std::array<double, 6>{500'000, 30, 0, 4'200'000, 0, -20}));
        EXPECT_EQ(painted.system, "EPSG:32633");
        EXPECT_EQ(painted.metadata.at("SURVEY"), "1999");
        EXPECT_EQ(painted.metadata.at("COLORMAP"), "Hypsometric");
        EXPECT_EQ(painted.metadata.at("COLORMAP_RANGE"), "0,4");
        EXPECT_FALSE(painted.hasNoDataValue) << "a component of a colour is no datum";
        EXPECT_EQ(painted.isAlphaLast, painted.bands == 4);
    }
}

TEST(ColorForms, TellTheParametersThatWereSet) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", {{0, 1}});
    paint(folder, "Glow", "grid.tif", "new.tif", {"--set", "center=0.3", "--set", "inverted=yes"});
    EXPECT_EQ(readPainted(folder / "new.tif").metadata.at("COLORMAP_SETTINGS"),
              "center=0.3; inverted=yes");
}

TEST(ColorForms, APictureHasFilesBesideItOnlyForItsPlace) {
    TemporaryFolder const folder;
    writeGeoTiff(folder / "nowhere.tif", {{{{0, 1}}}});
    writePlaced(folder / "grid.tif", {{0, 1}});
    for (char const* const grid : {"grid.tif", "nowhere.tif"})
        for (char const* const name : {"new.png", "new.webp", "new.tif"})
            paint(folder, "Glow", grid, name);
    EXPECT_EQ(folder.names(), (Lines{"grid.tif", "new.png", "new.tif", "new.webp", "nowhere.tif"}))
        << "those of the older pictures tell a wrong place";
    paint(folder, "Glow", "grid.tif", "new.png");
    EXPECT_EQ(folder.names(), (Lines{"grid.tif", "new.png", "new.png.aux.xml", "new.tif",
                                     "new.webp", "new.wld", "nowhere.tif"}));
}

TEST(ColorForms, AGeoTiffIsTiledWithFourBandsAndNotCompressed) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "wide.vrt", emptyGrid(60'000, 300));
    workbench::writeFile(folder / "grid.vrt", emptyGrid(700, 300));
    paint(folder, "Glow", "grid.vrt", "new.tif", {"--range", "0,1"});
    Painted const painted = readPainted(folder / "new.tif");
    EXPECT_EQ(painted.bands, 4);
    EXPECT_EQ(painted.blockWidth, 256);
    EXPECT_EQ(painted.blockHeight, 256);
    EXPECT_FALSE(painted.structure.contains("COMPRESSION"));
    paint(folder, "Glow", "wide.vrt", "wide.tif", {"--range", "0,1"});
    EXPECT_EQ(readPainted(folder / "wide.tif").blockHeight, 128) << "a row of tiles is bounded";
}

TEST(ColorForms, AnOverviewHasNoColorThatTheMapHasNot) {
    TemporaryFolder const folder;
    Rows rows;
    for (int y = 0; y < 1100; ++y)
        rows.emplace_back(1100, y % 2);
    writePlaced(folder / "grid.tif", rows);
    paint(folder, "RedGreen", "grid.tif", "new.tif", {"--cog"});
    Painted const painted = readPainted(folder / "new.tif");
    EXPECT_EQ(painted.structure.at("LAYOUT"), "COG");
    ASSERT_GE(painted.overviews.size(), 1U);
    std::vector<Rgba8> const colors = lookup("RedGreen", {"0", "1"});
    EXPECT_EQ(painted.pixels[0], colors[0]);
    EXPECT_EQ(painted.pixels[1100], colors[1]);
    for (auto const& overview : painted.overviews)
        for (Rgba8 const& pixel : overview)
            ASSERT_NE(std::ranges::find(colors, pixel), colors.end());
}

/// Larger than what is painted at once.
TEST(ColorForms, AllButJpegKeepEveryColor) {
    constexpr std::size_t columns = 256, height = 2500;
    TemporaryFolder const folder;
    std::vector<double> row(columns);
    Lines values;
    for (std::size_t i = 0; i < columns; ++i) {
        row[i] = double(i);
        values.push_back(shortest(row[i] / columns));
    }
    writePlaced(folder / "grid.tif", Rows(height, row));
    std::vector<Rgba8> const colors = lookup("Glow", values);
    for (char const* const name : {"new.tif", "new.png", "new.webp"}) {
        paint(folder, "Glow", "grid.tif", name, {"--range", "0,256"});
        std::vector<Rgba8> const pixels = readPainted(folder / name).pixels;
        ASSERT_EQ(pixels.size(), columns * height);
        for (std::size_t i = 0; i < pixels.size(); ++i)
            ASSERT_EQ(pixels[i], colors[i % columns]) << name << ", cell " << i;
    }
}

TEST(ColorForms, AJpegIsWhiteWithoutDataAndNearlyTheColorsElsewhere) {
    TemporaryFolder const folder;
    Rows rows(64, std::vector<double>(64, 1.0));
    for (auto& row : rows)
        std::fill_n(row.begin(), 32, -1.0);
    writePlaced(folder / "grid.tif", rows);
    paint(folder, "Hypsometric", "grid.tif", "new.jpg", {"--range", "0,2"});
    Painted const painted = readPainted(folder / "new.jpg");
    EXPECT_EQ(painted.bands, 3);
    EXPECT_EQ(painted.pixels[0], White);
    Rgba8 const expected = lookup("Hypsometric", {"0.5"}).front();
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(painted.pixels[63][i], expected[i], 3);
}

TEST(ColorForms, AnOldPictureIsReplacedAndALinkStaysOne) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", {{0, 1}});
    workbench::writeFile(folder / "old.png", "old");
    workbench::writeFile(folder / "old.png.ovr", "overviews of the old one");
    fs::permissions(folder / "old.png", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("old.png", folder / "link.png");
    paint(folder, "Glow", "grid.tif", "link.png");
    EXPECT_TRUE(fs::is_symlink(folder / "link.png"));
    EXPECT_EQ(readPainted(folder / "old.png").pixels, lookup("Glow", {"0", "1"}));
    EXPECT_EQ(fs::status(folder / "old.png").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(fs::exists(folder / "old.png.ovr"));
}

TEST(ColorResized, TakesTheNearestCellsIfNothingElseIsSaid) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", {{0, 1, 2, 3}, {4, 5, 6, 7}});
    paint(folder, "Glow", "grid.tif", "new.tif", {"--resize", "8,0", "--range", "0,8"});
    Painted const painted = readPainted(folder / "new.tif");
    EXPECT_EQ(painted.width, 8);
    EXPECT_EQ(painted.height, 4);
    EXPECT_EQ(painted.transform, (std::array<double, 6>{500'000, 15, 0, 4'200'000, 0, -10}));
    std::vector<Rgba8> const colors =
        lookup("Glow", {"0", "0.125", "0.25", "0.375", "0.5", "0.625", "0.75", "0.875"});
    for (std::size_t y = 0; y < 4; ++y)
        for (std::size_t x = 0; x < 8; ++x)
            EXPECT_EQ(painted.pixels[8 * y + x], colors[4 * (y / 2) + x / 2]) << x << ", " << y;
}

TEST(ColorResized, LooksMeansOfValuesUpAndNotMeansOfColors) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", {{0, 2, 8, -1}, {4, 6, 8, -1}});
    paint(folder, "Hypsometric", "grid.tif", "new.tif",
          {"--resize", "0.5", "--resampling", "average", "--range", "0,8"});
    EXPECT_EQ(readPainted(folder / "new.tif").pixels, lookup("Hypsometric", {"0.375", "1"}));
}

TEST(ColorResized, HasItsRangeFromWhatIsRead) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", {{0, 2, 8, 8}, {4, 6, 8, 8}});
    paint(folder, "Glow", "grid.tif", "new.tif", {"--resize", "2,1", "--resampling", "average"});
    EXPECT_EQ(readPainted(folder / "new.tif").metadata.at("COLORMAP_RANGE"), "3,8");
}

/// A ridge that falls to the left and to the right, and level ground behind it.
Rows ridge() {
    Rows rows;
    for (int y = 0; y < 12; ++y) {
        rows.emplace_back();
        for (int x = 0; x < 40; ++x)
            rows.back().push_back(x < 30 ? 300.0 - 20.0 * std::abs(15 - x) : 0.0);
    }
    return rows;
}

/// What becomes of a component in a shade: to black where it is darker than level
/// ground, half way to white where it is lighter.
int shaded(int component, double shade, double altitude) {
    double const level = 1.0 + 254.0 * std::sin(altitude * std::numbers::pi / 180.0);
    if (std::abs(shade - level) <= 0.5)
        return component;
    double const part = shade < level
                            ? component * shade / level
                            : component + 0.5 * (255 - component) * (shade - level) / (255 - level);
    return static_cast<int>(part + 0.5);
}

TEST(ColorShaded, DarkensAndLightensByTheHillshadeOfGdal) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", ridge());
    struct {
        Lines more;
        double azimuth, altitude;
    } const table[] = {
        {{"--hillshade"}, 315, 45},
        {{"--hillshade", "90,30"}, 90, 30},
        {{"--hillshade=0,90"}, 0, 90},
    };
    paint(folder, "Glow", "grid.tif", "plain.tif", {"--range", "0,600"});
    std::vector<Rgba8> const plain = readPainted(folder / "plain.tif").pixels;
    for (auto const& each : table) {
        SCOPED_TRACE(each.more.back());
        Lines more = each.more;
        more.insert(more.end(), {"--range", "0,600"});
        std::vector<double> const shades =
            shadesOf(folder / "grid.tif", each.azimuth, each.altitude);
        for (char const* const name : {"new.tif", "new.png"}) {
            paint(folder, "Glow", "grid.tif", name, more);
            std::vector<Rgba8> const pixels = readPainted(folder / name).pixels;
            for (std::size_t i = 0; i < pixels.size(); ++i)
                for (std::size_t c = 0; c < 3; ++c)
                    ASSERT_EQ(pixels[i][c], shaded(plain[i][c], shades[i], each.altitude))
                        << "cell " << i;
        }
    }
    EXPECT_EQ(folder.names(),
              (Lines{"grid.tif", "new.png", "new.png.aux.xml", "new.tif", "new.wld", "plain.tif"}));
}

TEST(ColorShaded, LevelGroundKeepsItsColorsAndHolesStay) {
    TemporaryFolder const folder;
    Rows rows(5, std::vector<double>(5, 7.0));
    rows[2][2] = -1;
    writePlaced(folder / "grid.tif", rows);
    for (char const* const light : {"315,45", "100,20", "0,90", "10,1"}) {
        paint(folder, "Hypsometric", "grid.tif", "new.tif", {"--hillshade", light});
        std::vector<Rgba8> expected(25, lookup("Hypsometric", {"0.5"}).front());
        expected[12] = Transparent;
        EXPECT_EQ(readPainted(folder / "new.tif").pixels, expected) << light;
    }
}

TEST(ColorShaded, HeightsAreInTheirUnitsAndDegreesAreNotMetres) {
    TemporaryFolder const folder;
    Rows half = ridge();
    for (auto& row : half)
        for (double& value : row)
            value *= 2;
    GridFacts const metres{"Float32", {{500'000, 30, 0, 4'200'000, 0, -30}}, 32633, {}};
    constexpr double degree = 111'120;
    GridFacts const degrees{"Float32", {{10, 30 / degree, 0, 0, 0, -30 / degree}}, 4326, {}};
    writeGeoTiff(folder / "metres.tif", {{ridge()}}, metres);
    writeGeoTiff(folder / "scaled.tif", {{half, {}, 0.5}}, metres);
    writeGeoTiff(folder / "degrees.tif", {{ridge()}}, degrees);
    for (char const* const name : {"metres", "scaled", "degrees"})
        paint(folder, "Glow", name + std::string(".tif"), name + std::string(".png"),
              {"--hillshade"});
    std::vector<Rgba8> const expected = readPainted(folder / "metres.png").pixels;
    EXPECT_EQ(readPainted(folder / "scaled.png").pixels, expected);
    EXPECT_EQ(readPainted(folder / "degrees.png").pixels, expected);
}

TEST(ColorLegend, IsAPictureOfTheMapOverTheRange) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", {{-250, 750}});
    paint(folder, "Hypsometric", "grid.tif", "new.tif",
          {"--legend", textOf(folder / "legend.png")});
    auto const legend = readPng(workbench::readFile(folder / "legend.png"));
    ASSERT_TRUE(legend);
    std::vector<Rgba8> const colors = lookup("Hypsometric", {"0.01", "0.51", "0.99"});
    int const x = 30;
    EXPECT_EQ(legend->at(x, legend->height() * 96 / 100), colors[0]);
    EXPECT_EQ(legend->at(x, legend->height() * 5 / 100), colors[2]);
    EXPECT_EQ(legend->at(legend->width() - 1, 0), White);
}

TEST(ColorLegend, InSvgHasLabelsInTheUnitsOfTheData) {
    TemporaryFolder const folder;
    writePlaced(folder / "grid.tif", {{-250, 750}});
    paint(folder, "Hypsometric", "grid.tif", "new.tif",
          {"--legend", textOf(folder / "legend.svg")});
    std::string const legend = workbench::readFile(folder / "legend.svg");
    for (char const* const label : {">-250<", ">-150<", ">250<", ">750<"})
        EXPECT_NE(legend.find(label), std::string::npos) << label;
    for (Rgba8 const& color : lookup("Hypsometric", {"0.001", "0.5", "0.999"}))
        EXPECT_NE(legend.find("rgb(" + std::to_string(color[0]) + "," + std::to_string(color[1]) +
                              "," + std::to_string(color[2]) + ")"),
                  std::string::npos);
}

/// `script` gives the program a terminal to write to. What would take long is ended once
/// it has told.
TEST(ColorProgress, TellsTheTimeThatIsLeft) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "grid.vrt", emptyGrid(30'000, 30'000));
    std::string const call =
        fileBeside("telmbench") +
        " color DopplerMap grid.vrt --range 0,1 -o new.tif &"
        " until grep -q %[,] log || ! kill -0 $!; do sleep 0.05; done; kill $!";
    runProcess("/bin/sh", {"-c", "cd \"$1\" && script -qefc \"$2\" log >script.log", "sh",
                           textOf(folder.path()), call});
    std::string const log = workbench::readFile(folder / "log");
    std::regex const line("\rpainting +[0-9]+ %, [0-9]+ (s|min) left");
    EXPECT_TRUE(std::regex_search(log, line)) << log;
}

/// The program in 256 MB of memory. The sanitizer's own memory is more than that.
void paintInLittleMemory(TemporaryFolder const& folder, Lines const& arguments) {
    Lines call{fileBeside("telmbench"), "color", "Hypsometric", textOf(folder / "grid.tif")};
    call.insert(call.end(), arguments.begin(), arguments.end());
    if (!PRISM_ADDRESS_SANITIZER)
        call.insert(call.begin(), {"/usr/bin/prlimit", "--data=268435456"});
    ProcessResult const result = runProcess(call.front(), {call.begin() + 1, call.end()});
    EXPECT_EQ(result.err, "");
    ASSERT_EQ(result.status, 0);
}

TEST(ColorInLittleMemory, PaintsASparseGridOf60000Squared) {
    constexpr int side = 60'000;
    TemporaryFolder const folder;
    writeSparseGeoTiff(folder / "grid.tif", side,
                       {{0, 0, 0}, {31'234, 40'000, 5}, {side - 1, side - 1, 20}});
    paintInLittleMemory(folder, {"-o", textOf(folder / "new.tif")});
    std::vector<Rgba8> const colors = lookup("Hypsometric", {"0", "0.25", "1"});
    auto const at = [&](int x, int y) { return readPainted(folder / "new.tif", x, y, 1, 1)[0]; };
    EXPECT_EQ(at(0, 0), colors[0]);
    EXPECT_EQ(at(31'234, 40'000), colors[1]);
    EXPECT_EQ(at(side - 1, side - 1), colors[2]);
    EXPECT_EQ(at(1, 0), Transparent);
    EXPECT_EQ(at(20'000, 20'000), Transparent);
    EXPECT_LT(fs::file_size(folder / "new.tif"), 8'000'000U) << "what is empty takes no room";
}

/// 80 million cells that are all there, of which the picture alone is 320 MB.
TEST(ColorInLittleMemory, PaintsAFullGridThatIsLarger) {
    if (PRISM_ADDRESS_SANITIZER)
        GTEST_SKIP() << "too slow, and nothing to learn without the limit";
    TemporaryFolder const folder;
    workbench::writeFile(folder / "grid.tif", emptyGrid(20'000, 4'000));
    paintInLittleMemory(folder, {"--range", "0,4", "-o", textOf(folder / "new.png")});
    paintInLittleMemory(folder, {"--range", "0,4", "--cog", "-o", textOf(folder / "new.tif")});
    for (char const* const name : {"new.png", "new.tif"})
        EXPECT_EQ(readPainted(folder / name, 19'999, 0, 1, 1), lookup("Hypsometric", {"0"}));
}

}  // namespace
