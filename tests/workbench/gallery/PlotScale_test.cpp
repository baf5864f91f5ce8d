#include "workbench/gallery/PlotScale.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using workbench::PlotScale;
using Numbers = std::vector<double>;

struct ScaleCase {
    char const* rule;
    double min;
    double max;
    bool logarithmic;
    Numbers ticks;
};

ScaleCase const scaleCases[] = {
    {"what fits exactly", 0.0, 1.0, false, {0, 0.25, 0.5, 0.75, 1}},
    {"0 and 1 are always there", 0.4, 0.6, false, {0, 0.25, 0.5, 0.75, 1}},
    {"a little beyond", -0.125, 1.125, false, {0, 0.25, 0.5, 0.75, 1}},
    {"twice as bright", 0.0, 2.0, false, {0, 0.5, 1, 1.5, 2}},
    {"1 where the step leaves it out", -5.0, 8.0, false, {-5, -2.5, 0, 1, 2.5, 5, 7.5}},
    {"the most that is linear", -10.0, 10.0, false, {-10, -5, 0, 1, 5, 10}},
    {"more than that", 0.0, 10.5, true, {0, 1, 10}},
    {"much less than nothing", -200.0, 1.0, true, {-100, -10, -1, 0, 1}},
    {"millions", -6493833.0, 6450078.0, true, {-1e6, -1e4, -100, -1, 0, 1, 100, 1e4, 1e6}},
    {"all that a float holds", 0.0, 3e38, true, {0, 1, 1e13, 1e26}},
};

TEST(PlotScale, TicksAreFewAndHold0And1) {
    for (auto const& [rule, min, max, logarithmic, ticks] : scaleCases) {
        PlotScale const scale(min, max);
        EXPECT_EQ(scale.isLogarithmic(), logarithmic) << rule;
        EXPECT_EQ(scale.ticks().size(), ticks.size()) << rule;
        for (std::size_t i = 0; i < std::min(ticks.size(), scale.ticks().size()); ++i)
            EXPECT_NEAR(scale.ticks()[i], ticks[i], 1e-9 * std::abs(ticks[i])) << rule;
    }
}

TEST(PlotScale, HeightsRiseAndStayOnTheAxis) {
    for (ScaleCase const& each : scaleCases) {
        PlotScale const scale(each.min, each.max);
        double before = 0.0;
        for (double const value : scale.ticks()) {
            EXPECT_GT(scale.height(value), before) << each.rule;
            before = scale.height(value);
        }
        EXPECT_LT(before, 1.0) << each.rule;
        EXPECT_GE(scale.height(each.min), 0.03) << each.rule;
        EXPECT_LE(scale.height(each.max), 0.97) << each.rule;
    }
}

TEST(PlotScale, LinearHeightsAreInProportion) {
    PlotScale const scale(-1.0, 3.0);
    EXPECT_DOUBLE_EQ(scale.height(1.0), 0.5);
    EXPECT_DOUBLE_EQ(scale.height(2.0) - scale.height(1.0), scale.height(0.0) - scale.height(-1.0));
}

TEST(PlotScale, BeyondOneTwoPowersOfTenAreAsLongAsTheWayFrom0To1) {
    PlotScale const scale(-1e6, 1e6);
    double const unit = scale.height(1.0) - scale.height(0.0);
    EXPECT_DOUBLE_EQ(scale.height(0.5) - scale.height(0.0), 0.5 * unit);
    EXPECT_NEAR(scale.height(100.0) - scale.height(1.0), unit, 1e-9);
    EXPECT_NEAR(scale.height(1e6) - scale.height(1e4), unit, 1e-9);
    EXPECT_NEAR(scale.height(0.0) - scale.height(-100.0), 2.0 * unit, 1e-9);
}

}  // namespace
