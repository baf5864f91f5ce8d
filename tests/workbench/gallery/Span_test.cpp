#include "workbench/gallery/Span.hpp"

#include <gtest/gtest.h>

#include "tests/workbench/picture/sampleMaps.hpp"

namespace {

using namespace workbench;
using namespace tests;

TEST(Spans, TheSpanOfComponentsLeavesAlphaAndWhatIsNoNumberOut) {
    Span const whole = componentSpan(samplesOf({{-0.5, 0.25, 1.5, 9}, {0, 1, 0, -9}}));
    EXPECT_EQ(whole.min, -0.5);
    EXPECT_EQ(whole.max, 1.5);
    EXPECT_TRUE(whole.allFinite);
    Span const part = componentSpan(samplesOf({{NaN, 0.25, Infinity, 1}, {0.5, 0.5, 0.5, 1}}));
    EXPECT_EQ(part.min, 0.25);
    EXPECT_EQ(part.max, 0.5);
    EXPECT_FALSE(part.allFinite);
    Span const none = componentSpan(samplesOf({{NaN, NaN, NaN, NaN}}));
    EXPECT_EQ(none.min, 0.0);
    EXPECT_EQ(none.max, 0.0);
    EXPECT_FALSE(none.allFinite);
}

TEST(Spans, TheSpanOfLightnessIsThatOfTheScreen) {
    Span const span = lightnessSpan(samplesOf({{-5, 0, NaN, 1}, {9, 9, 9, 1}}));
    EXPECT_EQ(span.min, 0.0);
    EXPECT_NEAR(span.max, 100.0, 1e-4);
    EXPECT_TRUE(span.allFinite);
}

}  // namespace
