/// The tables that were asked for a short while ago.
#include "prism/tinctures/science/RecentTables.hpp"

#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <functional>
#include <limits>

namespace tests {
namespace {

using namespace prism;
using testing::Optional;

using Table = RecentTables::Table;

Orlo::Enum const Lights = Orlo::Enum().addCase("D50").addCase("D65");

DistinctRequest request() {
    return {10, 30, Lights, {0, 0, 0, 1}, {0.25, 0.5, 0.75, 1}};
}

DistinctRequest numbered(int number) {
    DistinctRequest wanted = request();
    wanted.count = number;
    return wanted;
}

/// No selection, so that it cannot be confused with one.
Table table(std::size_t size = 3) {
    return Table(size, {0.125, 0.25, 0.375, 0.5});
}

TEST(RecentTables, AreNoneAtFirst) {
    RecentTables recent;
    EXPECT_EQ(recent.find(request()), std::nullopt);
}

TEST(RecentTables, GiveATableToEveryoneWhoAsksForTheSame) {
    RecentTables recent;
    recent.keep(request(), table());
    for (int i = 0; i < 3; ++i)
        EXPECT_THAT(recent.find(request()), Optional(table()));
}

struct Change {
    std::string name;
    std::function<void(DistinctRequest&)> of;
};

using Tessar::rgba_float_t;

float withAnotherLastBit(float number) {
    return std::bit_cast<float>(std::bit_cast<std::uint32_t>(number) ^ 1U);
}

class OtherRequest : public testing::TestWithParam<Change> {};

TEST_P(OtherRequest, IsAnother) {
    RecentTables recent;
    recent.keep(request(), table());
    DistinctRequest other = request();
    GetParam().of(other);
    EXPECT_EQ(recent.find(other), std::nullopt);
    EXPECT_THAT(recent.find(request()), Optional(table()));
}

std::vector<Change> changes() {
    std::vector<Change> all{
        {"Count", [](auto& each) { ++each.count; }},
        {"Steps", [](auto& each) { ++each.steps; }},
        {"Illuminant", [](auto& each) { each.illuminant = Lights.select("D65"); }},
        {"NoIlluminant", [](auto& each) { each.illuminant = {}; }},
        {"SignOfZero", [](auto& each) { each.background1[0] = -0.0F; }},
        {"Swapped", [](auto& each) { std::swap(each.background1, each.background2); }}};
    for (std::size_t i = 0; i < 4; ++i) {
        all.push_back({"LastBitOfBackground1At" + std::to_string(i), [i](auto& each) {
                           each.background1[i] = withAnotherLastBit(each.background1[i]);
                       }});
        all.push_back({"LastBitOfBackground2At" + std::to_string(i), [i](auto& each) {
                           each.background2[i] = withAnotherLastBit(each.background2[i]);
                       }});
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(InOneThing, OtherRequest, testing::ValuesIn(changes()),
                         [](auto const& row) { return row.param.name; });

TEST(RecentTables, KnowABackgroundWithoutANumberByItsBits) {
    RecentTables recent;
    DistinctRequest wanted = request();
    wanted.background1[0] = std::numeric_limits<float>::quiet_NaN();
    recent.keep(wanted, table());
    EXPECT_THAT(recent.find(wanted), Optional(table()));
}

TEST(RecentTables, AreThoseAskedForLast) {
    RecentTables recent;
    constexpr int Places = 4;
    for (int i = 0; i < Places; ++i)
        recent.keep(numbered(i), table());
    EXPECT_TRUE(recent.find(numbered(0))) << "now it is the latest";
    recent.keep(numbered(Places), table());
    EXPECT_EQ(recent.find(numbered(1)), std::nullopt) << "the one not asked for the longest";
    for (int const i : {0, 2, Places})
        EXPECT_TRUE(recent.find(numbered(i))) << i;
}

TEST(RecentTables, AreNotLong) {
    RecentTables recent;
    recent.keep(request(), table(4097));
    EXPECT_EQ(recent.find(request()), std::nullopt);
    recent.keep(request(), table(4096));
    EXPECT_TRUE(recent.find(request()));
}

TEST(RecentTables, MayBeEmpty) {
    RecentTables recent;
    recent.keep(numbered(0), {});
    EXPECT_THAT(recent.find(numbered(0)), Optional(Table()));
}

}  // namespace
}  // namespace tests
