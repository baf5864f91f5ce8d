/// `telmbench color` in a build that has no GDAL.
#include "tests/workbench/cli/telmbench.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/data/DataGrid.hpp"

namespace {

using namespace tests;

TEST(NoGdal, NoGridIsRead) {
    EXPECT_FALSE(workbench::readsGrids());
    EXPECT_THROW(workbench::openGrid("grid.tif"), workbench::WorkError);
}

TEST(NoGdal, TheCommandSaysWhatToDo) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "grid.asc", "ncols 1\nnrows 1\n");
    ProcessResult const result = telmbench(
        {"color", "Glow", (folder / "grid.asc").string(), "-o", (folder / "new.png").string()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.outLines(), Lines{});
    EXPECT_EQ(result.errLines(),
              Lines{"telmbench: this build of telmbench has no GDAL, without which it reads no "
                    "grids; use a Linux build made where GDAL is installed (Debian: libgdal-dev)"});
    EXPECT_EQ(folder.names(), Lines{"grid.asc"});
}

TEST(NoGdal, TheHelpSaysSoToo) {
    ProcessResult const result = telmbench({"color", "--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out.find("This build of telmbench has no GDAL"), std::string::npos);
}

}  // namespace
