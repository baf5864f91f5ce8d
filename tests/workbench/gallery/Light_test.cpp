#include "workbench/gallery/Light.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Tessar::rgba_float_t;
using workbench::colorOf;
using workbench::lightness;
using workbench::lightOf;

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinity = std::numeric_limits<float>::infinity();

struct LightnessCase {
    char const* rule;
    rgba_float_t color;
    double lightness;
};

LightnessCase const lightnessCases[] = {
    {"black", {0, 0, 0, 1}, 0.0},
    {"white", {1, 1, 1, 1}, 100.0},
    {"red", {1, 0, 0, 1}, 53.23},
    {"green", {0, 1, 0, 1}, 87.74},
    {"blue", {0, 0, 1, 1}, 32.30},
    {"yellow", {1, 1, 0, 1}, 97.14},
    {"the grey in the middle of the numbers", {0.5, 0.5, 0.5, 1}, 53.39},
    {"the grey in the middle of lightness", {0.46633F, 0.46633F, 0.46633F, 1}, 50.0},
    {"a grey on the straight part of the curve", {0.05F, 0.05F, 0.05F, 1}, 3.56},
    {"alpha does not count", {1, 0, 0, 0}, 53.23},
    {"beyond white", {2, 1e30F, Infinity, 1}, 100.0},
    {"beyond black", {-1, -1e30F, -Infinity, 1}, 0.0},
    {"no number is no light", {NaN, 0, 1, 1}, 32.30},
};

TEST(Lightness, IsThatOfTheScreen) {
    for (auto const& [rule, color, expected] : lightnessCases)
        EXPECT_NEAR(lightness(lightOf(color)), expected, 0.01) << rule;
}

TEST(Lightness, GrowsWithEveryGrey) {
    double before = -1.0;
    for (int i = 0; i <= 255; ++i) {
        float const grey = static_cast<float>(i) / 255.0F;
        double const present = lightness(lightOf({grey, grey, grey, 1}));
        EXPECT_GT(present, before) << i;
        before = present;
    }
}

TEST(Light, FollowsTheCurveOfSrgb) {
    EXPECT_EQ(lightOf({0, 0, 0, 1}).red, 0.0);
    EXPECT_EQ(lightOf({1, 1, 1, 1}).green, 1.0);
    EXPECT_NEAR(lightOf({0.5, 0, 0, 1}).red, 0.214041, 1e-6);
    EXPECT_NEAR(lightOf({0, 0.04045F, 0, 1}).green, 0.0031308, 1e-7);
    EXPECT_NEAR(lightOf({0, 0, 0.01F, 1}).blue, 0.01 / 12.92, 1e-9);
}

TEST(Light, BecomesTheColorAgain) {
    for (int i = 0; i <= 1000; ++i) {
        float const component = static_cast<float>(i) / 1000.0F;
        rgba_float_t const color{component, 1.0F - component, 0.25F, 1};
        rgba_float_t const again = colorOf(lightOf(color));
        for (std::size_t channel = 0; channel < 4; ++channel)
            EXPECT_NEAR(again[channel], color[channel], 1e-6) << component;
    }
}

TEST(Light, BeyondTheScreenIsLimited) {
    EXPECT_EQ(colorOf({-0.1, 1.1, 0.0}), (rgba_float_t{0, 1, 0, 1}));
}

}  // namespace
