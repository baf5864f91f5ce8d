#include "workbench/platform/Library.hpp"

#include <gtest/gtest.h>

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
