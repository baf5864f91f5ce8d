/// Every entry with every entry's map in its output: classes of different
/// sources bear the same names, and none may be taken for another.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/RecordingOutput.hpp"

namespace tests {
namespace {

using namespace Orlo;
using Nucleo::Ageable;

/// The entries whose objects are of one class, and so take each other's maps for
/// their own. All others are strangers to each other.
std::vector<std::vector<std::string>> const families{
    {"BathymetricColors", "Hypsometric", "TopoBathy"},
    {"RedGreen", "Muv"},
    {"LogRedGreen", "Ort"},
};

bool areOfOneClass(std::string const& one, std::string const& other) {
    return one == other || std::ranges::any_of(families, [&](auto const& family) {
               return std::ranges::count(family, one) > 0 && std::ranges::count(family, other) > 0;
           });
}

/// All that a map answers, and what it holds for its consumers.
struct Content {
    std::vector<rgba_float_t> colors;
    int size;
    double time;
    bool cached;

    explicit Content(Colormap const& map)
        : size(map.getSize()), time(map.time), cached(map.cachedChunk.alive()) {
        for (int i = -10; i <= 20; ++i)
            colors.push_back(map.getColor(i / 10.0));
    }
    bool operator==(Content const&) const = default;
};

/// A map of another object of the entry, with parameters changed, a time, and a
/// consumer's cache.
ColormapPtr mapOfAnother(MapDescription const& entry) {
    ObjectPtr const object = create(entry.key());
    for (Setting const& setting : entry.cycle.change)
        set(*object, setting.name, setting.text);
    ColormapPtr const map = update(*object, makePool("another"));
    map->time = 7.0;
    map->cachedChunk = new Nucleo::Chunk<double>(1);
    return map;
}

/// An object of the entry that has made its map already.
class OutputWithTheMapOfAnother : public PluginTest,
                                  public testing::WithParamInterface<MapDescription> {
protected:
    struct Outcome {
        bool stays, isUnchanged, isTouched, isDrawn;
    };

    static Outcome outcome(MapDescription const& another) {
        ObjectPtr const object = create(GetParam().key());
        PoolPtr const pool = makePool();
        RecordingOutput output(*object, pool);
        update(*object, pool);
        ColormapPtr const map = mapOfAnother(another);
        Content const before(*map);
        output.place(map);
        output.clear();
        Ageable::GlobalTime.fetch_add(5);
        auto const age = map->age();
        forceUpdate(*object, pool);
        return {.stays = output.map().get() == map.get(),
                .isUnchanged = Content(*map) == before,
                .isTouched = map->age() != age && map->age() == Ageable::now(),
                .isDrawn = output.icons() == 1};
    }
};

TEST_P(OutputWithTheMapOfAnother, TakesThatOfItsOwnClassAndLeavesAStrangersAlone) {
    CycleRow const& rule = GetParam().cycle;
    for (MapDescription const& another : describedMaps()) {
        SCOPED_TRACE("the map of " + another.name);
        Outcome const seen = outcome(another);
        if (rule.makes != Makes::Always && areOfOneClass(another.name, GetParam().name)) {
            EXPECT_TRUE(seen.stays);
            EXPECT_FALSE(seen.isUnchanged) << "at least the cache goes";
            EXPECT_EQ(seen.isTouched, rule.age != Age::Raised);
            EXPECT_EQ(seen.isDrawn, rule.drawsIcon);
        } else {
            bool const replaced = rule.foreign == Foreign::Replaced;
            bool const drawn = rule.foreign == Foreign::DrawnAndTouched;
            EXPECT_EQ(seen.stays, !replaced);
            EXPECT_TRUE(seen.isUnchanged);
            EXPECT_EQ(seen.isTouched, drawn);
            EXPECT_EQ(seen.isDrawn, drawn || replaced);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Entries, OutputWithTheMapOfAnother, testing::ValuesIn(describedMaps()),
                         [](auto const& map) { return testName(map.param.name); });

TEST(Families, AreOfEntries) {
    auto const isDescribed = [](std::string const& name) {
        return std::ranges::any_of(describedMaps(),
                                   [&](auto const& map) { return map.name == name; });
    };
    for (auto const& family : families)
        for (std::string const& name : family)
            EXPECT_TRUE(isDescribed(name)) << name;
}

}  // namespace
}  // namespace tests
