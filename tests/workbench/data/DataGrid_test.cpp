#include "workbench/data/DataGrid.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/Process.hpp"
#include "tests/workbench/data/GridFile.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/picture/png.hpp"

namespace {

using namespace tests;
using workbench::openGrid;

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

std::vector<double> allOf(workbench::DataGrid& grid) {
    std::vector<double> values(static_cast<std::size_t>(grid.width()) *
                               static_cast<std::size_t>(grid.height()));
    grid.read(0, values);
    return values;
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
    std::vector<double> two(4), one(2);
    grid->read(2, two);
    grid->read(1, one);
    expectValues(two, {5, 6, 7, 8});
    expectValues(one, {3, 4});
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

TEST(DataGrid, LeavesNothingBesideItsFile) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "a.asc", asciiGrid({{1, 2}}));
    allOf(*openGrid((folder / "a.asc").string()));
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a.asc"});
}

}  // namespace
