#include "workbench/scene/layout.hpp"

#include <gtest/gtest.h>

using namespace workbench;

namespace tests {
namespace {

TEST(Labels, AreShort) {
    struct {
        double value;
        char const* text;
    } const table[] = {{0, "0"},       {-0.0, "0"},           {0.3, "0.3"},
                       {100, "100"},   {1.0 / 3, "0.333333"}, {1e6, "1e+06"},
                       {-2.5, "-2.5"}, {123456, "123456"}};
    for (auto const& each : table)
        EXPECT_EQ(labelText(each.value), each.text);
}

TEST(Labels, MarksOfTenthsAreTenths) {
    for (int i = 0; i <= 10; ++i)
        EXPECT_EQ(markValue(0, 1, i, 10), i / 10.0);
    EXPECT_EQ(markValue(5, -5, 0, 4), 5);
    EXPECT_EQ(markValue(5, -5, 4, 4), -5);
}

}  // namespace
}  // namespace tests
