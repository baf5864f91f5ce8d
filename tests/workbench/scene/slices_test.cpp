#include <gtest/gtest.h>

#include <limits>

#include "tests/workbench/scene/telling.hpp"
#include "workbench/scene/Slice.hpp"

using namespace Orlo;
using namespace workbench;

namespace tests {
namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

/// Black below a half, white from there on.
class StepMap : public TellingMap {
public:
    StepMap() : TellingMap(0) {}
    Tessar::rgba_float_t getColor(double value) const override {
        return value < 0.5 ? Tessar::rgba_float_t(0, 0, 0, 0) : Tessar::rgba_float_t(1, 1, 1, 0);
    }
};

/// The first component that a slice shows at a place; -1 where it shows none.
double shownAt(Slice const& slice, int normal, double first, double second) {
    auto const met = slice.intersect(rayAt(normal, first, second));
    return met ? double{met->color.red()} : -1.0;
}

/// Three samples in each direction, whose value tells their place: 211 is x 2,
/// y 1, z 1.
FunctionField const Telling({3, 1.0}, [](int i, int j, int k) { return 100.0 * i + 10 * j + k; });

SliceOptions telling(int normal, double position, SliceMode mode) {
    SliceOptions options;
    options.mode = mode;
    options.normal = normal;
    options.position = position;
    options.datarange = {0, 255};
    return options;
}

struct SampleCase {
    int normal;
    double position;
    SliceMode mode;
    double first, second;
    double expected;  ///< the value that is shown
};

TEST(Slices, ShowTheFieldInTheirPlane) {
    using enum SliceMode;
    SampleCase const table[] = {
        // each orientation, at the samples themselves
        {0, -1, Discrete, -1, -1, 0},
        {0, 1, Discrete, 0, 1, 212},
        {0, 0, Interpolated, 1, 0, 121},
        {1, 1, Discrete, -1, 1, 22},
        {1, 0, Interpolated, 1, 0, 211},
        {1, -1, Smooth, 1, 1, 202},
        {2, 1, Discrete, 1, -1, 202},
        {2, 0, Interpolated, 0, 1, 121},
        {2, -1, Smooth, 1, 1, 220},
        // between samples: the nearest one, or a value in between
        {2, -1, Discrete, 0.4, -1, 100},
        {2, -1, Discrete, 0.6, -1, 200},
        {2, -1, Interpolated, 0.5, -1, 150},
        {2, -1, Interpolated, 0.5, 0.5, 165},
        {2, -1, Interpolated, -0.25, 0.1, 86},
        {2, -1, Smooth, 0.5, 0.5, 165},
        // between layers
        {0, 0.5, Interpolated, 0, 0, 161},
        {1, 0.4, Interpolated, 0, 0, 115},
        {2, -0.5, Discrete, 0, 0, 111},
        // a position outside the grid is its nearest face, none at all the lowest
        {0, 7, Discrete, -1, -1, 200},
        {0, -7, Discrete, 1, 1, 22},
        {0, Infinity, Discrete, -1, -1, 200},
        {0, NaN, Discrete, 1, 1, 22},
    };
    for (SampleCase const& each : table) {
        Slice const slice(Telling, new TellingMap(0),
                          telling(each.normal, each.position, each.mode));
        EXPECT_NEAR(shownAt(slice, each.normal, each.first, each.second) * 255, each.expected, 0.51)
            << "normal " << each.normal << ", position " << each.position << ", mode "
            << static_cast<int>(each.mode) << " at " << each.first << ", " << each.second;
    }
}

TEST(Slices, InterpolatedLooksUpBetweenSamplesAndSmoothLerpsTheColors) {
    FunctionField const step({2, 1.0}, [](int i, int, int) { return i == 0 ? 0.0 : 1.0; });
    for (double const x : {-1.0, -0.5, -0.01, 0.01, 0.5, 1.0}) {
        SliceOptions options;
        options.normal = 2;
        EXPECT_EQ(shownAt(Slice(step, new StepMap, options), 2, x, 0), x < 0 ? 0 : 1) << x;
        options.mode = SliceMode::Smooth;
        EXPECT_NEAR(shownAt(Slice(step, new StepMap, options), 2, x, 0), (x + 1) / 2, 1e-6) << x;
        options.mode = SliceMode::Discrete;
        EXPECT_EQ(shownAt(Slice(step, new StepMap, options), 2, x, 0), x < 0 ? 0 : 1) << x;
    }
}

struct TexelCase {
    double sample;
    Interval datarange;
    int precision;
    double expected;
};

TEST(Slices, SamplesAreMappedClampedAndRounded) {
    TexelCase const table[] = {
        {0.3001, {0, 1}, 255, 77.0 / 255},
        {0.3001, {0, 1}, 65535, 19667.0 / 65535},
        {0.0019, {0, 1}, 255, 0.0},
        {0.0020, {0, 1}, 255, 1.0 / 255},
        {15, {10, 20}, 255, 128.0 / 255},
        {15, {20, 10}, 65535, 32768.0 / 65535},
        {12, {20, 10}, 255, 204.0 / 255},
        {-3, {0, 1}, 255, 0.0},
        {3, {0, 1}, 255, 1.0},
        {0.7, {0.5, 0.5}, 255, 0.0},
        {0.5, {0.5, 0.5}, 255, 0.0},
        {NaN, {0, 1}, 255, 0.0},
        {Infinity, {0, 1}, 255, 1.0},
        {-Infinity, {0, 1}, 65535, 0.0},
        {0.5, {NaN, 1}, 255, 0.0},
        {0.5, {0, Infinity}, 255, 0.0},
    };
    for (TexelCase const& each : table) {
        FunctionField const constant({2, 1.0}, [&](int, int, int) { return each.sample; });
        SliceOptions options;
        options.datarange = each.datarange;
        options.precision = each.precision;
        for (SliceMode const mode :
             {SliceMode::Discrete, SliceMode::Interpolated, SliceMode::Smooth}) {
            options.mode = mode;
            Slice const slice(constant, new TellingMap(0), options);
            EXPECT_EQ(shownAt(slice, 1, 0.3, -0.2), double{static_cast<float>(each.expected)})
                << each.sample << " in " << each.datarange.min << "," << each.datarange.max;
        }
    }
}

TEST(Slices, TheDomainOfTheMapSpansTheTexture) {
    FunctionField const constant({2, 1.0}, [](int, int, int) { return 0.2; });
    Slice const slice(constant, new TellingMap(0.0, -2, 3), SliceOptions());
    EXPECT_NEAR(shownAt(slice, 1, 0, 0), 0.2, 1e-6);
}

TEST(Slices, ARayIntersectsThemInTheirSquareAlone) {
    Slice const slice(Telling, new TellingMap(0), SliceOptions());
    for (double const inside : {-1.0, -0.999, 0.0, 1.0}) {
        EXPECT_GE(shownAt(slice, 1, inside, 0), 0) << inside;
        EXPECT_GE(shownAt(slice, 1, 0, inside), 0) << inside;
    }
    for (double const outside : {-1.001, 1.001, 5.0, NaN, Infinity}) {
        EXPECT_EQ(shownAt(slice, 1, outside, 0), -1) << outside;
        EXPECT_EQ(shownAt(slice, 1, 0, outside), -1) << outside;
    }
    EXPECT_FALSE(slice.intersect({{0, 9, 0}, {1, 0, 0}}));
    EXPECT_FALSE(slice.intersect({{0, 0, 0}, {1, 0, 0}}));
}

TEST(Slices, TheyTellHowDeepTheRayIntersectsThem) {
    SliceOptions options;
    options.position = 0.5;
    options.opacity = 0.25;
    Slice const slice(Telling, new TellingMap(0), options);
    auto const met = slice.intersect({{0, 2.5, 0}, {0, -1, 0}});
    ASSERT_TRUE(met);
    EXPECT_EQ(met->depth, 2.0);
    EXPECT_EQ(met->opacity, 0.25);
    EXPECT_EQ(slice.intersect({{0, -2.5, 0}, {0, -1, 0}})->depth, -3.0);
}

}  // namespace
}  // namespace tests
