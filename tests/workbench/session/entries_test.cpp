#include "workbench/session/entries.hpp"

#include <gtest/gtest.h>

namespace {

using namespace workbench;

TEST(NameIn, IsWhatStandsBehindTheLastSlash) {
    EXPECT_EQ(nameIn("Colormaps/Glow"), "Glow");
    EXPECT_EQ(nameIn("a/b/c"), "c");
    EXPECT_EQ(nameIn("Glow"), "Glow");
}

}  // namespace
