/// The arithmetic that the formula maps share.
#include "prism/tinctures/science/arithmetic.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "prism/tinctures/science/timesTwoOverPi.hpp"

namespace tests {
namespace {

struct LimitRow {
    std::string rule;
    double value, limited;
};

class Limit : public testing::TestWithParam<LimitRow> {};

TEST_P(Limit, BringsToZeroToOne) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(prism::clamped(GetParam().value)),
              std::bit_cast<std::uint64_t>(GetParam().limited));
}

constexpr double Tiny = std::numeric_limits<double>::denorm_min();

INSTANTIATE_TEST_SUITE_P(
    Rules, Limit,
    testing::Values(LimitRow{"InsideNothingChanges", 0.3, 0.3}, LimitRow{"Zero", 0.0, 0.0},
                    LimitRow{"NegativeZeroBecomesZero", -0.0, 0.0},
                    LimitRow{"RightBelowZero", -Tiny, 0.0}, LimitRow{"RightAboveZero", Tiny, Tiny},
                    LimitRow{"One", 1.0, 1.0},
                    LimitRow{"RightAboveOne", std::nextafter(1.0, 2.0), 1.0},
                    LimitRow{"RightBelowOne", std::nextafter(1.0, 0.0), std::nextafter(1.0, 0.0)},
                    LimitRow{"FarAbove", std::numeric_limits<double>::infinity(), 1.0},
                    LimitRow{"FarBelow", -std::numeric_limits<double>::infinity(), 0.0},
                    LimitRow{"NoNumberBecomesOne", std::numeric_limits<double>::quiet_NaN(), 1.0}),
    [](auto const& row) { return row.param.rule; });

// What the maps rest on where they leave a function of the C library out.

/// Doubles of all kinds; numbers that are close to 0 and powers of two among them.
std::vector<double> numbers() {
    std::vector<double> all{0.0, -0.0, std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity()};
    for (int exponent = -1074; exponent < 1024; ++exponent)
        for (double const sign : {1.0, -1.0})
            all.push_back(std::ldexp(sign, exponent));
    std::mt19937_64 random(1);
    while (all.size() < 300'000) {
        auto const any = std::bit_cast<double>(random());
        if (any == any)
            all.push_back(any);
        all.push_back(std::ldexp(static_cast<double>(random() >> 11), -53));
        all.push_back(std::bit_cast<double>(random() % 1000));
    }
    return all;
}

std::uint64_t bitsOf(double number) {
    return std::bit_cast<std::uint64_t>(number);
}

TEST(Power, OfOneIsTheNumberItself) {
    double const volatile one = 1.0;
    for (double const x : numbers())
        ASSERT_EQ(bitsOf(std::pow(x, one)), bitsOf(x)) << x;
    EXPECT_TRUE(std::isnan(std::pow(std::numeric_limits<double>::quiet_NaN(), one)));
}

TEST(Remainder, OfLessThanATurnIsTheNumberItself) {
    double const volatile turn = 360.0;
    for (double const x : numbers()) {
        auto const hue = static_cast<double>(static_cast<float>(std::fmod(x, 400.0)));
        if (std::fabs(hue) < 360.0) {
            ASSERT_EQ(bitsOf(std::fmod(hue, turn)), bitsOf(hue)) << hue;
        }
    }
}

TEST(ArcTangent, TimesTwoOverPiKeepsTheSign) {
    for (double const x : numbers()) {
        double const d = prism::timesTwoOverPi(std::atan(x));
        ASSERT_EQ(d < 0.0, x < 0.0) << x;
        ASSERT_EQ(d > 0.0, x > 0.0) << x;
    }
}

}  // namespace
}  // namespace tests
