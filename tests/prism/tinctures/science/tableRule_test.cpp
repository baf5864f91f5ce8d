/// How a number becomes the row of a table. This file is compiled with all
/// optimisations, so that the compiler sees each number as a constant: a fold
/// must give what the processor gives.
#include "prism/tinctures/science/tableRule.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace prism {
namespace {

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Greatest = std::numeric_limits<std::int32_t>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Tiny = std::numeric_limits<double>::denorm_min();

struct Truncation {
    double number;
    std::int32_t integer;
};

constexpr Truncation Truncations[] = {
    {0.0, 0},
    {-0.0, 0},
    {Tiny, 0},
    {0.9999999999999999, 0},
    {-0.9999999999999999, 0},
    {1.0, 1},
    {-1.0, -1},
    {67.5, 67},
    {-67.5, -67},
    {2147483647.0, Greatest},
    {2147483647.9999998, Greatest},
    {2147483648.0, Lowest},
    {-2147483648.0, Lowest},
    {-2147483648.9999995, Lowest},
    {-2147483649.0, Lowest},
    {1e300, Lowest},
    {-1e300, Lowest},
    {Infinity, Lowest},
    {-Infinity, Lowest},
    {NaN, Lowest},
};

template <std::size_t I>
void expectConstant() {
    EXPECT_EQ(truncated(Truncations[I].number), Truncations[I].integer) << Truncations[I].number;
}

/// All of them, each as a constant of its own.
template <std::size_t... I>
void expectConstants(std::index_sequence<I...>) {
    (expectConstant<I>(), ...);
}

TEST(Truncated, OfAConstantGivesTheLowestIntegerForWhatFitsNone) {
    expectConstants(std::make_index_sequence<std::size(Truncations)>());
}

TEST(Truncated, OfAVariableGivesTheLowestIntegerForWhatFitsNone) {
    for (Truncation const& each : Truncations) {
        double const volatile hidden = each.number;
        EXPECT_EQ(truncated(hidden), each.integer) << each.number;
    }
}

TEST(Truncated, FollowsTheRuleThatItIsWrittenDownAs) {
    for (Truncation const& each : Truncations) {
        double const volatile hidden = each.number;
        EXPECT_EQ(truncatedByRule(hidden), each.integer) << each.number;
    }
}

TEST(Truncated, GivesTheSameWhileCompiling) {
    constexpr bool allRight = [] {
        for (Truncation const& each : Truncations)
            if (truncated(each.number) != each.integer)
                return false;
        return true;
    }();
    static_assert(allRight);
}

constexpr ColorTable<3> Table{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}}};

TEST(TableRow, OfAConstantIsThatOfAVariable) {
    double const volatile infinity = Infinity, nan = NaN;
    EXPECT_EQ(tableRow(Table, Infinity), Table[0]);
    EXPECT_EQ(tableRow(Table, infinity), Table[0]);
    EXPECT_EQ(tableRow(Table, NaN), Table[0]);
    EXPECT_EQ(tableRow(Table, nan), Table[0]);
    EXPECT_EQ(tableRow(Table, 1.0), Table[2]);
    static_assert(tableRow(Table, 0.5)[2] == 1.0F, "2.0 before truncation");
    static_assert(tableRow(Table, Infinity)[0] == 1.0F);
}

}  // namespace
}  // namespace prism
