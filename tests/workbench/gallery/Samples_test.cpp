#include "workbench/gallery/Samples.hpp"

#include <gtest/gtest.h>

#include "tests/workbench/gallery/sampleMaps.hpp"

namespace {

using namespace workbench;
using namespace tests;

TEST(Samples, LieAtTheMiddlesOfTheirColumns) {
    Orlo::ColormapPtr const map = new RedRamp;
    Samples const samples = sample(*map, 4);
    EXPECT_EQ(samples.least, -1.0);
    EXPECT_EQ(samples.greatest, 3.0);
    std::vector<Orlo::rgba_float_t> const expected{
        {-0.5, 0.5, 0, 1}, {0.5, 0.5, 0, 1}, {1.5, 0.5, 0, 1}, {2.5, 0.5, 0, 1}};
    EXPECT_EQ(samples.colours, expected);
}

TEST(Samples, ARampHasAColumnForEach) {
    Image const ramp = rampOf(samplesOf({{1, 0, 0, 0}, {0, 0.5, 2, 1}}), 3);
    EXPECT_EQ(ramp.width(), 2);
    EXPECT_EQ(ramp.height(), 3);
    EXPECT_EQ(ramp.at(0, 2), (Rgba8{255, 0, 0, 255}));
    EXPECT_EQ(ramp.at(1, 0), (Rgba8{0, 128, 255, 255}));
}

TEST(Samples, ARampMayBeChanged) {
    auto const swapped = [](Orlo::rgba_float_t const& c) {
        return Orlo::rgba_float_t{c.blue(), c.green(), c.red(), c.alpha()};
    };
    EXPECT_EQ(rampOf(samplesOf({{1, 0, 0, 1}}), 1, swapped).at(0, 0), (Rgba8{0, 0, 255, 255}));
}

TEST(Samples, TheSpanOfComponentsLeavesAlphaAndWhatIsNoNumberOut) {
    Span const whole = componentSpan(samplesOf({{-0.5, 0.25, 1.5, 9}, {0, 1, 0, -9}}));
    EXPECT_EQ(whole.least, -0.5);
    EXPECT_EQ(whole.greatest, 1.5);
    EXPECT_TRUE(whole.allFinite);
    Span const part = componentSpan(samplesOf({{NaN, 0.25, Infinity, 1}, {0.5, 0.5, 0.5, 1}}));
    EXPECT_EQ(part.least, 0.25);
    EXPECT_EQ(part.greatest, 0.5);
    EXPECT_FALSE(part.allFinite);
    Span const none = componentSpan(samplesOf({{NaN, NaN, NaN, NaN}}));
    EXPECT_EQ(none.least, 0.0);
    EXPECT_EQ(none.greatest, 0.0);
    EXPECT_FALSE(none.allFinite);
}

TEST(Samples, TheSpanOfLightnessIsThatOfTheScreen) {
    Span const span = lightnessSpan(samplesOf({{-5, 0, NaN, 1}, {9, 9, 9, 1}}));
    EXPECT_EQ(span.least, 0.0);
    EXPECT_NEAR(span.greatest, 100.0, 1e-4);
    EXPECT_TRUE(span.allFinite);
}

}  // namespace
