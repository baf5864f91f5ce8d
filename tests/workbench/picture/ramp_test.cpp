#include "workbench/picture/ramp.hpp"

#include <gtest/gtest.h>

#include "tests/workbench/picture/sampleMaps.hpp"

namespace {

using namespace workbench;
using namespace tests;

TEST(Samples, LieAtTheMiddlesOfTheirColumns) {
    Orlo::ColormapPtr const map = new RedRamp;
    Samples const samples = sample(*map, 4);
    EXPECT_EQ(samples.domain.min, -1.0);
    EXPECT_EQ(samples.domain.max, 3.0);
    std::vector<Orlo::rgba_float_t> const expected{
        {-0.5, 0.5, 0, 1}, {0.5, 0.5, 0, 1}, {1.5, 0.5, 0, 1}, {2.5, 0.5, 0, 1}};
    EXPECT_EQ(samples.colors, expected);
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

}  // namespace
