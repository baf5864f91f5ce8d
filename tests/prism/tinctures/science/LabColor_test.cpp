/// The perceptual colour space.
#include "prism/tinctures/science/LabColor.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace tests {
namespace {

using namespace prism;

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

Orlo::Enum light(std::string const& word) {
    return Orlo::Enum().addCase("D50").addCase("D65").select(word);
}

LabPoint converted(std::string const& word, RgbTriple const& rgb) {
    return rgbToLab(light(word), 1, {rgb}).at(0);
}

struct Reference {
    std::string rule;
    std::string light;
    RgbTriple rgb;
    double L, a, b;  ///< rounded to six decimals
};

std::ostream& operator<<(std::ostream& out, Reference const& reference) {
    return out << reference.rule;
}

class LabReference : public testing::TestWithParam<Reference> {};

TEST_P(LabReference, AgreesToSixDecimals) {
    Reference const& expected = GetParam();
    LabPoint const point = converted(expected.light, expected.rgb);
    constexpr double halfADigit = 0.5000001e-6;
    EXPECT_NEAR(point.L, expected.L, halfADigit);
    EXPECT_NEAR(point.a, expected.a, halfADigit);
    EXPECT_NEAR(point.b, expected.b, halfADigit);
}

INSTANTIATE_TEST_SUITE_P(
    Primaries, LabReference,
    testing::Values(Reference{"BlackD50", "D50", {0, 0, 0}, 0, 0, 0},
                    Reference{"BlackD65", "D65", {0, 0, 0}, 0, 0, 0},
                    Reference{"WhiteD50", "D50", {1, 1, 1}, 100, 0, 0},
                    Reference{"WhiteD65HasASmallTint", "D65", {1, 1, 1}, 100, 0.00526, -0.010408},
                    Reference{"RedD50", "D50", {1, 0, 0}, 54.291734, 80.812455, 69.88504},
                    Reference{"RedD65", "D65", {1, 0, 0}, 53.232882, 80.10931, 67.220068},
                    Reference{"GreenD50", "D50", {0, 1, 0}, 87.818128, -79.287281, 80.990256},
                    Reference{"GreenD65", "D65", {0, 1, 0}, 87.737033, -86.184636, 83.181165},
                    Reference{"BlueD50", "D50", {0, 0, 1}, 29.567573, 68.298653, -112.02943},
                    Reference{"BlueD65", "D65", {0, 0, 1}, 32.302587, 79.196662, -107.863681}),
    [](auto const& reference) { return reference.param.rule; });

TEST(LabColor, MakesBlackExactlyZeroUnderBothIlluminants) {
    for (std::string const word : {"D50", "D65"}) {
        LabPoint const black = converted(word, {0, 0, 0});
        EXPECT_EQ(black.L, 0.0);
        EXPECT_EQ(black.a, 0.0);
        EXPECT_EQ(black.b, 0.0);
    }
}

/// The two branches of the companding differ by some 1e-8 at the joint, which
/// stays visible in the linear branch of the cube-root law.
TEST(LabColor, TakesTheLinearBranchAtTheJointOfTheCompanding) {
    double const joint = 0.04045;
    double const percent = joint * 0.07739938080495357 * 100.0;
    double const y = 0.7168786 * percent * 0.01;
    double const fy = 7.787 * y + 0.13793103448275862;
    EXPECT_EQ(converted("D50", {0, joint, 0}).L, 116.0 * fy - 16.0);
    double const above = std::nextafter(joint, 1.0);
    EXPECT_GT(std::fabs(converted("D50", {0, above, 0}).L - converted("D50", {0, joint, 0}).L),
              1e-9)
        << "the power branch begins right above it";
}

/// A green of 0.1141 is where Y passes 0.008856 of white. The two laws differ
/// there by 3e-5 in L.
TEST(LabColor, ChangesTheCubeRootLawAtTheThresholdOfTheComponent) {
    auto const y = [](double green) { return 0.7168786 * std::pow((green + 0.055) / 1.055, 2.4); };
    auto const lightness = [](double green) { return converted("D50", {0, green, 0}).L; };
    double const dark = y(0.1140), bright = y(0.1142);
    EXPECT_NEAR(lightness(0.1140), 116.0 * (7.787 * dark + 16.0 / 116.0) - 16.0, 1e-12);
    EXPECT_NEAR(lightness(0.1142), 116.0 * std::cbrt(bright) - 16.0, 1e-12);
}

TEST(LabColor, TakesD65ForEverythingButASelectedD50) {
    RgbTriple const red{1, 0, 0};
    LabPoint const d65 = converted("D65", red);
    for (Orlo::Enum const& other :
         {Orlo::Enum(), Orlo::Enum().addCase("D55"), Orlo::Enum().addCase("d50")}) {
        LabPoint const point = rgbToLab(other, 1, {red}).at(0);
        EXPECT_EQ(point.L, d65.L);
        EXPECT_EQ(point.a, d65.a);
        EXPECT_EQ(point.b, d65.b);
    }
    EXPECT_NE(converted("D50", red).L, d65.L);
}

TEST(LabColor, StartsEveryPointWithNothingNear) {
    for (LabPoint const& point : rgbToLab(light("D50"), 3, {{0, 0, 0}, {1, 0.5, 0.2}, {9, 9, 9}}))
        EXPECT_EQ(point.nearest, 1e15);
}

TEST(LabColor, ConvertsNoneWithoutTouchingTheList) {
    EXPECT_TRUE(rgbToLab(Orlo::Enum(), 0, {}).empty());
}

TEST(LabColor, ConvertsOnlyTheCountedInTheirOrder) {
    auto const points = rgbToLab(light("D65"), 2, {{1, 0, 0}, {0, 0, 1}, {0, 1, 0}});
    ASSERT_EQ(points.size(), 2u);
    EXPECT_EQ(points[0].L, converted("D65", {1, 0, 0}).L);
    EXPECT_EQ(points[1].L, converted("D65", {0, 0, 1}).L);
}

TEST(LabColor, RefusesANegativeCount) {
    try {
        rgbToLab(light("D50"), -1, {{0, 0, 0}});
        FAIL() << "a negative count was taken";
    } catch (std::length_error const& error) {
        EXPECT_STREQ(error.what(), "cannot create std::vector larger than max_size()");
    }
}

TEST(LabColor, LimitsNothing) {
    EXPECT_GT(converted("D50", {2, 2, 2}).L, 180.0);
    EXPECT_LT(converted("D50", {-1, -1, -1}).L, 0.0);
}

TEST(LabColor, GivesNoNumbersForNoNumber) {
    LabPoint const point = converted("D50", {NotANumber, 0.5, 0.5});
    EXPECT_TRUE(std::isnan(point.L));
    EXPECT_TRUE(std::isnan(point.a));
    EXPECT_TRUE(std::isnan(point.b));
    EXPECT_EQ(point.nearest, 1e15);
}

}  // namespace
}  // namespace tests
