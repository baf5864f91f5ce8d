/// The arithmetic that the formula maps share.
#include "prism/tinctures/science/arithmetic.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <string>

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

}  // namespace
}  // namespace tests
