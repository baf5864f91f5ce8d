#include "workbench/platform/program.hpp"

#include <gtest/gtest.h>

namespace {

using namespace workbench;

TEST(Program, LiesBesideItself) {
    EXPECT_TRUE(std::filesystem::is_regular_file(
        fileBesideProgram(programFileName("test_workbench_platform"))));
}

TEST(Program, NamesFilesInUtf8) {
    EXPECT_EQ(fileBesideProgram("\xc3\xa4").filename(), std::filesystem::path(u8"\u00e4"));
}

}  // namespace
