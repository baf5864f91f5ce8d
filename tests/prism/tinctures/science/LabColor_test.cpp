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

/// One component of XYZ under one illuminant, reached through the channel that
/// weighs most in it.
struct ComponentRow {
    std::string name, light;
    std::size_t channel;
    double weight;  ///< of the channel in the component
    double threshold, inverseWhite;
};

class LabComponent : public testing::TestWithParam<ComponentRow> {
protected:
    static LabPoint point(double percent) {
        double rgb[3]{};
        rgb[GetParam().channel] = percent;
        return linearToLab(selected(light(GetParam().light)), {rgb[0], rgb[1], rgb[2]});
    }

    /// The term of the component in the point: of X and Z by what differs from
    /// the term of Y, which stays in the linear law here.
    static double term(LabPoint const& point) {
        double const y = (point.L + 16.0) / 116.0;
        switch (GetParam().channel) {
        case 0:
            return point.a / 500.0 + y;
        case 2:
            return y - point.b / 200.0;
        default:
            return y;
        }
    }
};

/// The two laws differ at the threshold by some 1e-7, which is a thousand million
/// times what the arithmetic rounds away.
TEST_P(LabComponent, ChangesItsLawRightAboveItsThreshold) {
    ComponentRow const& row = GetParam();
    double last = row.threshold / row.weight;
    while (row.weight * last > row.threshold)
        last = std::nextafter(last, 0.0);
    while (row.weight * std::nextafter(last, 9.0) <= row.threshold)
        last = std::nextafter(last, 9.0);
    double const first = std::nextafter(last, 9.0);
    auto const linear = [&](double percent) {
        return 7.787 * (row.weight * percent * row.inverseWhite) + 0.13793103448275862;
    };
    auto const root = [&](double percent) {
        return std::cbrt(row.weight * percent * row.inverseWhite);
    };
    EXPECT_NEAR(term(point(last)), linear(last), 1e-15);
    EXPECT_NEAR(term(point(first)), root(first), 1e-15);
    EXPECT_GT(std::fabs(linear(last) - root(first)), 1e-8) << "the laws can be told apart";
}

INSTANTIATE_TEST_SUITE_P(
    Thresholds, LabComponent,
    testing::Values(
        ComponentRow{"XUnderD50", "D50", 0, 0.4360747, 0.8539132319999999, 0.010371077140071768},
        ComponentRow{"YUnderD50", "D50", 1, 0.7168786, 0.8855999999999999, 0.01},
        ComponentRow{"ZUnderD50", "D50", 2, 0.7141733, 0.730805976, 0.012118127506937628},
        ComponentRow{"XUnderD65", "D65", 0, 0.4124, 0.8417362319999999, 0.010521110608435826},
        ComponentRow{"YUnderD65", "D65", 1, 0.7152, 0.8855999999999999, 0.01},
        ComponentRow{"ZUnderD65", "D65", 2, 0.9505, 0.9642678479999999, 0.009184170164304804}),
    [](auto const& row) { return row.param.name; });

/// Channels where the product with the stored reciprocal and the quotient differ
/// in the last bit.
TEST(LabColor, MultipliesWithTheStoredReciprocals) {
    int telling = 0;
    for (int i = 1; i <= 40; ++i) {
        double const channel = i / 1000.0;
        EXPECT_EQ(linearPercent(channel), channel * 0.07739938080495357 * 100.0) << channel;
        telling += linearPercent(channel) != channel / 12.92 * 100.0;
    }
    EXPECT_GT(telling, 0);
    telling = 0;
    for (int i = 41; i <= 1000; ++i) {
        double const volatile channel = i / 1000.0;  // so that nobody takes the power beforehand
        double const product = (channel + 0.055) * 0.9478672985781991;
        EXPECT_EQ(linearPercent(channel), std::pow(product, 2.4) * 100.0) << channel;
        telling += product != (channel + 0.055) / 1.055;
    }
    EXPECT_GT(telling, 0);
}

/// What differs between the point's terms, exactly: the whole arithmetic once more.
TEST(LabColor, FollowsItsStepsToTheLastBit) {
    struct Light {
        std::string word;
        double matrix[3][3];
        double inverseWhite[3], threshold[3];
    };
    for (Light const& each :
         {Light{"D50",
                {{0.4360747, 0.3850649, 0.1430804},
                 {0.2225045, 0.7168786, 0.0606169},
                 {0.0139322, 0.0971045, 0.7141733}},
                {0.010371077140071768, 0.01, 0.012118127506937628},
                {0.8539132319999999, 0.8855999999999999, 0.730805976}},
          Light{"D65",
                {{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}},
                {0.010521110608435826, 0.01, 0.009184170164304804},
                {0.8417362319999999, 0.8855999999999999, 0.9642678479999999}}}) {
        StandardIlluminant const& chosen = selected(light(each.word));
        for (double const red : {0.0, 0.7, 31.0, 99.9})
            for (double const green : {0.1, 1.3, 47.0, 100.0})
                for (double const blue : {0.0, 0.9, 12.5, 88.0}) {
                    double f[3];
                    for (std::size_t i = 0; i < 3; ++i) {
                        double const* const row = each.matrix[i];
                        double const xyz = (row[0] * red + row[1] * green) + row[2] * blue;
                        double const t = xyz * each.inverseWhite[i];
                        f[i] = xyz > each.threshold[i] ? std::cbrt(t)
                                                       : 7.787 * t + 0.13793103448275862;
                    }
                    LabPoint const point = linearToLab(chosen, {red, green, blue});
                    EXPECT_EQ(point.L, 116.0 * f[1] - 16.0);
                    EXPECT_EQ(point.a, (f[0] - f[1]) * 500.0);
                    EXPECT_EQ(point.b, (f[1] - f[2]) * 200.0);
                }
    }
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
