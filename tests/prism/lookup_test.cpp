/// Every row of every description's lookups, and what all maps answer alike.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>

#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

struct Case {
    std::string key;
    LookupRow row;
    std::string testName;
};

std::ostream& operator<<(std::ostream& out, Case const& each) {
    return out << each.key << ": " << each.row.rule << " (" << each.row.scalar << ")";
}

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (MapDescription const& map : describedMaps()) {
        int number = 0;
        for (LookupRow const& row : map.lookups)
            cases.push_back({map.key(), row,
                             testName(map.name + " " + std::to_string(++number) + " " + row.rule)});
    }
    return cases;
}

/// The same number, bit for bit, except that all NaN are one.
bool same(float a, float b) {
    return std::isnan(a) ? std::isnan(b)
                         : std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

class Lookup : public PluginTest, public testing::WithParamInterface<Case> {};

TEST_P(Lookup, GivesTheColour) {
    Case const& each = GetParam();
    Orlo::ObjectPtr const object = create(each.key);
    for (Setting const& setting : each.row.settings)
        set(*object, setting.name, setting.text);
    Orlo::ColormapPtr const map = update(*object, makePool());
    ASSERT_TRUE(map);
    rgba_float_t const colour = map->getColor(each.row.scalar);
    for (std::size_t i = 0; i < colour.size(); ++i)
        EXPECT_TRUE(same(colour[i], each.row.colour[i]))
            << "component " << i << " is " << colour[i] << ", expected " << each.row.colour[i];
}

INSTANTIATE_TEST_SUITE_P(Rows, Lookup, testing::ValuesIn(allCases()),
                         [](auto const& each) { return each.param.testName; });

class Map : public PluginTest, public testing::WithParamInterface<MapDescription> {
protected:
    /// The map of a fresh object, in a pool that goes at once.
    Orlo::ColormapPtr fresh() const { return update(*create(GetParam().key()), makePool()); }
};

TEST_P(Map, AnswersDomainSizeLabelAndExtra) {
    Orlo::ColormapPtr const map = fresh();
    EXPECT_EQ(map->getMin(), 0);
    EXPECT_EQ(map->getMax(), 1);
    EXPECT_EQ(map->getSize(), GetParam().size);
    EXPECT_EQ(map->getLabel(), "");
    EXPECT_EQ(map->getExtra(), 0);
}

TEST_P(Map, OutlivesItsObjectAndItsPool) {
    Orlo::ObjectPtr object = create(GetParam().key());
    Orlo::PoolPtr pool = makePool();
    Orlo::ColormapPtr const map = update(*object, pool);
    rgba_float_t const before = map->getColor(0.3);
    Orlo::WeakObjectPtr const gone(object);
    object = nullptr;
    pool = nullptr;
    EXPECT_FALSE(gone);
    EXPECT_TRUE(map);
    EXPECT_EQ(map->getColor(0.3), before);
}

TEST_P(Map, AnswersByEntryWithTheColourOfTheScalarThatTheEntryStandsFor) {
    Orlo::ColormapPtr const map = fresh();
    auto const eightBit = [](float c) {
        return static_cast<int>(std::nearbyint(std::fmin(std::fmax(double{c}, 0.0), 1.0) * 255.0));
    };
    for (int i = 0; i < map->getSize(); ++i) {
        double const scalar = static_cast<double>(i) / map->getSize();
        rgba_float_t const colour = map->getColor(scalar);
        auto const entry = map->getColorRGBA(i);
        for (std::size_t c = 0; c < entry.size(); ++c)
            EXPECT_EQ(entry[c], eightBit(colour[c])) << "entry " << i << ", component " << c;
        EXPECT_EQ(map->getColorRGBA16(i), map->getColor16(scalar));
    }
}

INSTANTIATE_TEST_SUITE_P(Maps, Map, testing::ValuesIn(describedMaps()),
                         [](auto const& map) { return testName(map.param.name); });

}  // namespace
}  // namespace tests
