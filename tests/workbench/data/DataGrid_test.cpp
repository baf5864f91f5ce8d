#include "workbench/data/DataGrid.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/Process.hpp"
#include "tests/workbench/data/GridFile.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/data/shape.hpp"
#include "workbench/picture/png.hpp"

namespace {

using namespace tests;
using workbench::openGrid;

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

std::vector<double> valuesIn(workbench::DataGrid& grid, workbench::Window const& window) {
    workbench::Cells cells;
    grid.read(window, cells);
    std::vector<double> values;
    cells.forEach([&](double value) { values.push_back(value); });
    return values;
}

std::vector<double> allOf(workbench::DataGrid& grid) {
    return valuesIn(grid, {0, 0, grid.width(), grid.height()});
}

/// NaN equals NaN here.
void expectValues(std::vector<double> const& actual, std::vector<double> const& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_TRUE(actual[i] == expected[i] || (std::isnan(actual[i]) && std::isnan(expected[i])))
            << "cell " << i << " is " << actual[i];
}

TEST(DataGrid, HasItsRowsFromTheTopWithNoDataAsNaN) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "a.asc", asciiGrid({{1, 2, -9999}, {-4, 5.5, 6}}));
    auto const grid = openGrid((folder / "a.asc").string());
    EXPECT_EQ(grid->width(), 3);
    EXPECT_EQ(grid->height(), 2);
    expectValues(allOf(*grid), {1, 2, NoNumber, -4, 5.5, 6});
}

TEST(DataGrid, IsReadInAnyOrder) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "a.asc", asciiGrid({{1, 2}, {3, 4}, {5, 6}, {7, 8}}));
    auto const grid = openGrid((folder / "a.asc").string());
    expectValues(valuesIn(*grid, {0, 2, 2, 2}), {5, 6, 7, 8});
    expectValues(valuesIn(*grid, {1, 0, 1, 2}), {2, 4});
}

TEST(DataGrid, KeepsInfinitiesAndTakesNaNForNoData) {
    TemporaryFolder const folder;
    writeGeoTiff(folder / "a.tif", {{{{Infinity, -Infinity, NoNumber, 1e300}}, -1.0}});
    expectValues(allOf(*openGrid((folder / "a.tif").string())),
                 {Infinity, -Infinity, NoNumber, 1e300});
}

TEST(DataGrid, HasOneOfSeveralBandsInItsUnits) {
    TemporaryFolder const folder;
    writeGeoTiff(folder / "a.tif", {{{{1, 2}}}, {{{10, 20}}, 20.0, 0.5, 100.0}});
    expectValues(allOf(*openGrid((folder / "a.tif").string())), {1, 2});
    expectValues(allOf(*openGrid((folder / "a.tif").string(), 2)), {105, NoNumber});
    EXPECT_THROW(openGrid((folder / "a.tif").string(), 3), workbench::CallError);
    EXPECT_THROW(openGrid((folder / "a.tif").string(), 0), workbench::CallError);
}

TEST(DataGrid, OfATransparentPictureHasNoDataThere) {
    TemporaryFolder const folder;
    workbench::Image image(2, 1);
    image.at(0, 0) = {70, 1, 2, 255};
    image.at(1, 0) = {80, 1, 2, 0};
    workbench::writePng(folder / "a.png", image);
    expectValues(allOf(*openGrid((folder / "a.png").string())), {70, NoNumber});
}

TEST(DataGrid, IsNamedWithinAFileOfSeveral) {
    TemporaryFolder const folder;
    writeTwoGrids(folder / "two.nc");
    std::string const file = (folder / "two.nc").string();
    auto const nameOf = [&](char const* part) { return "NETCDF:\"" + file + "\":" + part; };
    expectValues(allOf(*openGrid(nameOf("salt"))), {2, 3});
    try {
        openGrid(file);
        ADD_FAILURE() << "which grid?";
    } catch (workbench::WorkError const& error) {
        EXPECT_EQ(error.what(), "cannot read '" + file + "': it holds several grids; name one: '" +
                                    nameOf("depth") + "', '" + nameOf("salt") + "'");
    }
    EXPECT_THROW(openGrid(nameOf("none")), workbench::WorkError);
}

/// How many windows cover each cell.
std::vector<int> coverOf(std::vector<workbench::Window> const& windows, int width, int height) {
    std::vector<int> cover(static_cast<std::size_t>(width * height));
    for (workbench::Window const& each : windows)
        for (int y = each.y; y < each.y + each.height; ++y)
            for (int x = each.x; x < each.x + each.width; ++x)
                ++cover.at(static_cast<std::size_t>(y * width + x));
    return cover;
}

TEST(DataGrid, IsCoveredOnceByWindowsOfABoundedSize) {
    struct {
        int width, height, blockWidth, blockHeight;
    } const table[] = {
        {1, 1, 1, 1},           {3000, 700, 3000, 1},     {3000, 700, 3000, 700},
        {3000, 700, 256, 256},  {700, 3000, 128, 128},    {3000, 700, 4096, 4096},
        {2000, 900, 1999, 899}, {600'000, 3, 600'000, 1}, {600'000, 3, 512, 512},
    };
    for (auto const& each : table) {
        for (auto const& windows :
             {workbench::blockWindows(each.width, each.height, each.blockWidth, each.blockHeight),
              workbench::rowWindows(each.width, each.height)}) {
            SCOPED_TRACE(testing::Message() << each.width << " x " << each.height << ", blocks "
                                            << each.blockWidth << " x " << each.blockHeight);
            std::vector<int> const once(static_cast<std::size_t>(each.width * each.height), 1);
            EXPECT_EQ(coverOf(windows, each.width, each.height), once);
            for (workbench::Window const& window : windows)
                EXPECT_LE(window.size(), 600'000U);
        }
    }
}

TEST(DataGrid, IsReadInWholeBlocksWhereTheyAreSmall) {
    for (workbench::Window const& window : workbench::blockWindows(5000, 5000, 256, 256)) {
        EXPECT_EQ(window.x % 256, 0);
        EXPECT_EQ(window.y % 256, 0);
    }
}

TEST(DataGrid, LeavesNothingBesideItsFile) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "a.asc", asciiGrid({{1, 2}}));
    allOf(*openGrid((folder / "a.asc").string()));
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a.asc"});
}

}  // namespace
