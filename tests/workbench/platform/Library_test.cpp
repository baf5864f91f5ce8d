#include "workbench/platform/Library.hpp"

#include <gmock/gmock.h>

#include "tests/support/Process.hpp"
#include "workbench/common/files.hpp"
#include "workbench/platform/program.hpp"

namespace {

using namespace workbench;

TEST(Libraries, GiveWhatTheyExportByItsName) {
    Library const library(fileBesideProgram("no_plugin.telm"));
    auto const function = library.find<int (*)()>("notTheExport");
    ASSERT_NE(function, nullptr);
    EXPECT_EQ(function(), 1);
    EXPECT_EQ(library.find<int (*)()>("notTheExpor"), nullptr);
}

TEST(Libraries, TellAllThatTheyExport) {
    EXPECT_THAT(Library(fileBesideProgram("no_plugin.telm")).exports(),
                testing::Contains("notTheExport"));
    EXPECT_THAT(Library(fileBesideProgram("prism_tinctures.telm")).exports(),
                testing::ElementsAre("TELM_API_2024_MAR_06__prism_tinctures"));
}

TEST(Libraries, SayWhyTheyAreNotLoaded) {
    tests::TemporaryFolder const folder;
    writeFile(folder / "text.telm", "no library");
    for (char const* const name : {"text.telm", "missing.telm"}) {
        try {
            Library const library(folder / name);
            ADD_FAILURE() << name;
        } catch (LibraryError const& error) {
            EXPECT_STRNE(error.what(), "") << name;
        }
    }
}

}  // namespace
