/// Every way in which `telmbench color` fails: the status, a line on standard
/// error that names the culprit, and no picture.
#include "tests/workbench/cli/telmbench.hpp"
#include "tests/workbench/data/GridFile.hpp"
#include "workbench/common/files.hpp"

namespace {

using namespace tests;

constexpr int WorkFailed = 1;
constexpr int CallWrong = 2;

struct FailureCase {
    char const* rule;
    Lines arguments;  ///< behind "color"; {folder} stands for a folder with grids
    int status;
    char const* message;  ///< how the line goes on behind "telmbench: "
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
    {"too wide",
     {"Glow", "{folder}/wide.vrt"},
     WorkFailed,
     "'{folder}/wide.vrt' has 16385 x 1 cells, and a picture 16384 a side and 100000000 in all at "
     "most; make the grid smaller first, for instance by 'gdal_translate -outsize 8192 0'"},
    {"too many cells",
     {"Glow", "{folder}/huge.vrt"},
     WorkFailed,
     "'{folder}/huge.vrt' has 16384 x 16384 cells, and a picture "},
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
    workbench::writeFile(folder / "cut.asc", good.substr(0, good.find("3 ")));
    workbench::writeFile(folder / "void.asc", asciiGrid({{-9999, -9999}}));
    workbench::writeFile(folder / "text.txt", "no grid\n");
    workbench::writeFile(folder / "empty.tif", "");
    workbench::writeFile(folder / "wide.vrt", emptyGrid(16385, 1));
    workbench::writeFile(folder / "huge.vrt", emptyGrid(16384, 16384));
}

class ColorFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(ColorFailure, IsOneLineWithTheCulpritAndLeavesNoPicture) {
    TemporaryFolder const folder;
    fill(folder);
    Lines const before = folder.names();
    Lines arguments{"color"};
    for (std::string const& argument : GetParam().arguments)
        arguments.push_back(inFolder(argument, folder));
    arguments.insert(arguments.end(), {"-o", (folder / "new.png").string()});
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
    writeTwoGrids(folder / "two.nc");
    workbench::writeFile(folder / "own.asc", asciiGrid({{0, 1}, {2, 3}}));
    std::filesystem::create_symlink("own.asc", folder / "link.asc");
    struct {
        std::string data;
        char const* output;
        char const* file;
    } const table[] = {
        {textOf(folder / "own.asc"), "own.asc", "own.asc"},
        {textOf(folder / "own.asc"), "link.asc", "own.asc"},
        {textOf(folder / "link.asc"), "own.asc", "own.asc"},
        {"NETCDF:\"" + textOf(folder / "two.nc") + "\":depth", "two.nc", "two.nc"},
    };
    for (auto const& each : table) {
        std::string const before = workbench::readFile(folder / each.file);
        ProcessResult const result =
            telmbench({"color", "Glow", each.data, "-o", textOf(folder / each.output)});
        EXPECT_EQ(result.status, CallWrong) << each.data;
        ASSERT_EQ(result.errLines().size(), 1U) << each.data;
        EXPECT_NE(result.errLines()[0].find("would be written over"), std::string::npos)
            << result.errLines()[0];
        EXPECT_EQ(workbench::readFile(folder / each.file), before) << each.data;
    }
}

}  // namespace
