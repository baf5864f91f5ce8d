/// Every way in which `telmbench color` fails: the status, a line on standard
/// error that names the culprit, and no picture.
#include <cstdint>
#include <filesystem>
#include <map>

#include "tests/workbench/cli/telmbench.hpp"
#include "tests/workbench/data/GridFile.hpp"
#include "workbench/common/files.hpp"
#include "workbench/picture/png.hpp"

namespace {

using namespace tests;

namespace fs = std::filesystem;

constexpr int WorkFailed = 1;
constexpr int CallWrong = 2;

struct FailureCase {
    char const* rule;
    Lines arguments;  ///< behind "color"; {folder} stands for a folder with grids
    int status;
    char const* message;  ///< how the line goes on behind "telmbench: "
    char const* output = "new.png";
};

FailureCase const cases[] = {
    {"no such file",
     {"Glow", "{folder}/none.tif"},
     WorkFailed,
     "cannot read '{folder}/none.tif': No such file or directory"},
    {"a folder",
     {"Glow", "{folder}"},
     WorkFailed,
     "cannot read '{folder}': it is a folder, and no grid"},
    {"no grid",
     {"Glow", "{folder}/text.txt"},
     WorkFailed,
     "cannot read '{folder}/text.txt': GDAL finds no grid there ("},
    {"an empty file",
     {"Glow", "{folder}/empty.tif"},
     WorkFailed,
     "cannot read '{folder}/empty.tif': it is empty"},
    {"fewer cells than told",
     {"Glow", "{folder}/cut.asc"},
     WorkFailed,
     "cannot read '{folder}/cut.asc': "},
    {"no band",
     {"Glow", "{folder}/good.asc", "--band", "2"},
     CallWrong,
     "'{folder}/good.asc' has no band 2; it has band 1 alone"},
    {"no data",
     {"Glow", "{folder}/void.asc"},
     WorkFailed,
     "'{folder}/void.asc' has no cell with a finite value, which leaves its range open; --range "
     "MIN,MAX gives one"},
    {"a range of one number",
     {"Glow", "{folder}/good.asc", "--range", "5"},
     CallWrong,
     "the range '5' is not of the form MIN,MAX"},
    {"a range of three",
     {"Glow", "{folder}/good.asc", "--range", "1,2,3"},
     CallWrong,
     "the range '1,2,3' is not of the form MIN,MAX"},
    {"a range the wrong way",
     {"Glow", "{folder}/good.asc", "--range", "2,1"},
     CallWrong,
     "the range '2,1' is not of the form MIN,MAX"},
    {"a range without extent",
     {"Glow", "{folder}/good.asc", "--range", "2,2"},
     CallWrong,
     "the range '2,2' is not of the form MIN,MAX"},
    {"a range without end",
     {"Glow", "{folder}/good.asc", "--range", "0,inf"},
     CallWrong,
     "the range '0,inf' is not of the form MIN,MAX"},
    {"an unknown ending",
     {"Glow", "{folder}/good.asc"},
     CallWrong,
     "the ending of '{folder}/new.gif' tells no form of pictures; known are .tif, .png, .jpg and "
     ".webp",
     "new.gif"},
    {"no ending",
     {"Glow", "{folder}/good.asc"},
     CallWrong,
     "the ending of '{folder}/new' tells no form of pictures; known are ",
     "new"},
    {"too large for WebP",
     {"Glow", "{folder}/huge.vrt", "--range", "0,1"},
     WorkFailed,
     "WebP is written from memory, and so for up to 4000000 cells; use .tif or .png, or --resize "
     "the grid",
     "new.webp"},
    {"too large for JPEG",
     {"Glow", "{folder}/larger.vrt", "--range", "0,1"},
     WorkFailed,
     "JPEG is written from memory, and so for up to 40000000 cells; ",
     "new.jpg"},
    {"too wide for JPEG",
     {"Glow", "{folder}/wide.vrt", "--range", "0,1"},
     WorkFailed,
     "cannot write the picture: ",
     "new.jpg"},
    {"cloud optimised and no GeoTIFF",
     {"Glow", "{folder}/good.asc", "--cog"},
     CallWrong,
     "--cog makes a GeoTIFF, and '{folder}/new.png' has not its ending .tif"},
    {"a light of one number",
     {"Glow", "{folder}/good.asc", "--hillshade", "315"},
     CallWrong,
     "the light '315' is not of the form AZIMUTH,ALTITUDE"},
    {"a light from below",
     {"Glow", "{folder}/good.asc", "--hillshade", "315,-1"},
     CallWrong,
     "the light '315,-1' is not of the form AZIMUTH,ALTITUDE"},
    {"a light from the horizon",
     {"Glow", "{folder}/good.asc", "--hillshade", "315,0"},
     CallWrong,
     "the light '315,0' is not of the form AZIMUTH,ALTITUDE"},
    {"a light from nowhere",
     {"Glow", "{folder}/good.asc", "--hillshade", "361,45"},
     CallWrong,
     "the light '361,45' is not of the form AZIMUTH,ALTITUDE"},
    {"a size of nothing",
     {"Glow", "{folder}/good.asc", "--resize", "0,0"},
     CallWrong,
     "the size '0,0' is not of the form WIDTH,HEIGHT"},
    {"a size of parts of cells",
     {"Glow", "{folder}/good.asc", "--resize", "1.5,2"},
     CallWrong,
     "the size '1.5,2' is not of the form WIDTH,HEIGHT"},
    {"a factor of nothing",
     {"Glow", "{folder}/good.asc", "--resize", "0"},
     CallWrong,
     "the size '0' is not of the form WIDTH,HEIGHT"},
    {"an unknown resampling",
     {"Glow", "{folder}/good.asc", "--resize", "4,4", "--resampling", "magic"},
     CallWrong,
     "--resampling: magic not in {nearest,bilinear,"},
    {"a legend without form",
     {"Glow", "{folder}/good.asc", "--legend", "{folder}/legend.txt"},
     CallWrong,
     "the ending of '{folder}/legend.txt' tells no form of legends; known are .png and .svg"},
    {"a legend that is the picture",
     {"Glow", "{folder}/good.asc", "--legend", "{folder}/new.png"},
     CallWrong,
     "the legend '{folder}/new.png' would be written over by the picture"},
    {"a legend that is the data",
     {"Glow", "{folder}/good.png", "--legend", "{folder}/good.png"},
     CallWrong,
     "'{folder}/good.png' would be written over '{folder}/good.png'"},
    {"an unknown entry",
     {"Glov", "{folder}/good.asc"},
     CallWrong,
     "there is no entry 'Glov'; did you mean 'Glow'?"},
    {"an unknown parameter",
     {"Glow", "{folder}/good.asc", "--set", "centre=0"},
     CallWrong,
     "'Glow' has no parameter 'centre'; did you mean 'center'?"},
};

std::string inFolder(std::string text, TemporaryFolder const& folder) {
    std::string const mark = "{folder}";
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark))
        text.replace(at, mark.size(), folder.path().string());
    return text;
}

/// Good and bad grids.
void fill(TemporaryFolder const& folder) {
    std::string const good = asciiGrid({{1, 2}, {3, 4}});
    workbench::writeFile(folder / "good.asc", good);
    workbench::writePng(folder / "good.png", workbench::Image(2, 2));
    workbench::writeFile(folder / "cut.asc", good.substr(0, good.find("3 ")));
    workbench::writeFile(folder / "void.asc", asciiGrid({{-9999, -9999}}));
    workbench::writeFile(folder / "text.txt", "no grid\n");
    workbench::writeFile(folder / "empty.tif", "");
    workbench::writeFile(folder / "wide.vrt", emptyGrid(65536, 1));
    workbench::writeFile(folder / "huge.vrt", emptyGrid(2001, 2000));
    workbench::writeFile(folder / "larger.vrt", emptyGrid(20'000, 2001));
}

/// The program with a limit that `prlimit` sets.
ProcessResult limited(std::string const& limit, Lines arguments) {
    arguments.insert(arguments.begin(), {limit, fileBeside("telmbench")});
    return runProcess("/usr/bin/prlimit", arguments);
}

/// All files of a folder, with a number made of their bytes.
using Contents = std::map<std::string, std::size_t>;

Contents contentsOf(TemporaryFolder const& folder) {
    Contents contents;
    for (std::string const& name : folder.names())
        contents[name] = fs::is_regular_file(folder / name)
                             ? std::hash<std::string>()(workbench::readFile(folder / name))
                             : 0;
    return contents;
}

/// Removes what was not there before.
void clean(TemporaryFolder const& folder, Contents const& before) {
    for (std::string const& name : folder.names())
        if (!before.contains(name))
            fs::remove_all(folder / name);
}

class ColorFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(ColorFailure, IsOneLineWithTheCulpritAndLeavesNoPicture) {
    TemporaryFolder const folder;
    fill(folder);
    Lines const before = folder.names();
    Lines arguments{"color"};
    for (std::string const& argument : GetParam().arguments)
        arguments.push_back(inFolder(argument, folder));
    arguments.insert(arguments.end(), {"-o", (folder / GetParam().output).string()});
    ProcessResult const result = telmbench(arguments);
    EXPECT_EQ(result.status, GetParam().status);
    EXPECT_EQ(result.outLines(), Lines{});
    ASSERT_EQ(result.errLines().size(), 1U) << result.err;
    std::string const expected = inFolder("telmbench: " + std::string(GetParam().message), folder);
    EXPECT_EQ(result.errLines().front().substr(0, expected.size()), expected);
    EXPECT_EQ(folder.names(), before);
}

std::string nameOf(testing::TestParamInfo<FailureCase> const& info) {
    std::string name = info.param.rule;
    for (char& c : name)
        c = c == ' ' ? '_' : c;
    return name;
}

INSTANTIATE_TEST_SUITE_P(Cases, ColorFailure, testing::ValuesIn(cases), nameOf);

TEST(ColorFailures, OfWritingNameThePicture) {
    TemporaryFolder const folder;
    fill(folder);
    std::string const target = (folder / "none/new.png").string();
    ProcessResult const result =
        telmbench({"color", "Glow", (folder / "good.asc").string(), "-o", target});
    EXPECT_EQ(result.status, WorkFailed);
    EXPECT_EQ(result.errLines(),
              Lines{"telmbench: cannot write '" + target + "': No such file or directory"});
}

TEST(ColorFailures, LeaveAnOldPictureAsItWas) {
    TemporaryFolder const folder;
    fill(folder);
    workbench::writeFile(folder / "old.png", "old");
    telmbench(
        {"color", "Glow", (folder / "cut.asc").string(), "-o", (folder / "old.png").string()});
    EXPECT_EQ(workbench::readFile(folder / "old.png"), "old");
}

TEST(ColorFailures, NoFileOfTheGridIsOverwritten) {
    TemporaryFolder const folder;
    fs::create_directory(folder / "other");
    writeGeoTiff(folder / "own.tif", {{{{0, 1}, {2, 3}}}});
    workbench::writeFile(folder / "virtual.vrt", virtualGrid("own.tif", 2, 2));
    workbench::writeFile(folder / "twice.vrt", virtualGrid("virtual.vrt", 2, 2));
    workbench::writePng(folder / "own.png", workbench::Image(2, 2));
    workbench::writeFile(folder / "own.wld", "1\n0\n0\n-1\n0\n0\n");
    fs::create_symlink("own.tif", folder / "link.tif");
    fs::create_symlink("..", folder / "other/way");
    fs::create_hard_link(folder / "own.tif", folder / "hard.tif");
    writeTwoGrids(folder / "two.nc");
    fs::create_hard_link(folder / "two.nc", folder / "two.tif");
    struct {
        std::string data;
        char const* output;
    } const table[] = {
        {textOf(folder / "own.tif"), "own.tif"},
        {textOf(folder / "own.tif"), "link.tif"},
        {textOf(folder / "own.tif"), "hard.tif"},
        {textOf(folder / "own.tif"), "other/way/own.tif"},
        {textOf(folder / "link.tif"), "own.tif"},
        {textOf(folder / "virtual.vrt"), "own.tif"},
        {textOf(folder / "twice.vrt"), "own.tif"},
        {textOf(folder / "own.png"), "own.jpg"},  // whose place would be told by the same file
        {"NETCDF:\"" + textOf(folder / "two.nc") + "\":depth", "two.tif"},
    };
    Contents const before = contentsOf(folder);
    for (auto const& each : table) {
        SCOPED_TRACE(each.data + " to " + each.output);
        ProcessResult const result = telmbench(
            {"color", "Glow", each.data, "--resize", "2", "-o", textOf(folder / each.output)});
        EXPECT_EQ(result.status, CallWrong);
        ASSERT_EQ(result.errLines().size(), 1U);
        EXPECT_NE(result.errLines()[0].find("would be written over"), std::string::npos)
            << result.errLines()[0];
        EXPECT_EQ(contentsOf(folder), before);
    }
}

/// A size of files above which nothing can be written stands for a full disk.
TEST(ColorFailures, AFullDiskLeavesNothing) {
    TemporaryFolder const folder;
    Rows rows(40, std::vector<double>(60));
    std::uint32_t state = 1;
    for (auto& row : rows)
        for (double& value : row)
            value = state = state * 1664525 + 1013904223;  // which nobody packs
    workbench::writeFile(folder / "noise.asc", asciiGrid(rows));
    Lines const calls[] = {
        {"new.tif"}, {"new.tif", "--cog"}, {"new.png"}, {"new.jpg"}, {"new.webp"}};
    for (Lines const& more : calls) {
        std::string const name = more.front();
        Lines call{"color", "Colorramp", textOf(folder / "noise.asc"), "-o", textOf(folder / name)};
        call.insert(call.end(), more.begin() + 1, more.end());
        Contents const before = contentsOf(folder);
        ASSERT_EQ(telmbench(call).status, 0);
        auto const size = static_cast<long>(fs::file_size(folder / name));
        ASSERT_GE(size, 2500) << name;
        clean(folder, before);
        // the message needs some room too
        for (long const room : {1000L, size / 2, size - 300, size - 12, size - 1}) {
            SCOPED_TRACE(testing::Message() << name << ", " << room << " of " << size << " bytes");
            ProcessResult const result = limited("--fsize=" + std::to_string(room), call);
            EXPECT_EQ(result.status, WorkFailed);
            EXPECT_EQ(result.errLines().size(), 1U) << result.err;
            EXPECT_TRUE(result.err.starts_with("telmbench: cannot write ")) << result.err;
            EXPECT_EQ(contentsOf(folder), before);
        }
        if (more.size() == 1) {  // a file on the way is larger than the optimised one
            EXPECT_EQ(limited("--fsize=" + std::to_string(size), call).status, 0);
        }
        clean(folder, before);
    }
}

TEST(ColorFailures, AnInterruptionLeavesNothing) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "large.vrt", emptyGrid(60000, 60000));
    workbench::writeFile(folder / "old.png", "old");
    Contents const before = contentsOf(folder);
    for (char const* const more :
         {"-o new.tif", "-o new.png", "-o old.png", "-o new.tif --cog", "-o new.tif --hillshade"})
        for (char const* const signal : {"INT", "TERM"}) {
            SCOPED_TRACE(std::string(more) + ", " + signal);
            // a shell would have its children ignore the signal
            std::string const script = "cd \"$1\"; env --default-signal=" + std::string(signal) +
                                       " \"$2\" color Glow large.vrt --range 0,1 " + more +
                                       " & until ls | grep -q part || ! kill -0 $!; do sleep 0.01; "
                                       "done; sleep 0.1; kill -s " +
                                       signal + " $!; wait $!";
            ProcessResult const result = runProcess(
                "/bin/sh", {"-c", script, "sh", textOf(folder.path()), fileBeside("telmbench")});
            EXPECT_EQ(result.status, signal == std::string("INT") ? 130 : 143) << result.err;
            EXPECT_EQ(contentsOf(folder), before);
        }
}

}  // namespace
