/// The update cycle: the common path, and each map's departures from it.
#include <gtest/gtest.h>

#include "host/values/VValueParameter.hpp"
#include "tests/prism/ForeignMap.hpp"
#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/RecordingOutput.hpp"
#include "tests/support/RecordingSpeaker.hpp"

namespace tests {
namespace {

using namespace Orlo;
using Nucleo::Ageable;

/// An object of the entry with a recording output in a pool.
class Update : public PluginTest, public testing::WithParamInterface<MapDescription> {
protected:
    void SetUp() override {
        pool_ = makePool();
        object_ = create(GetParam().key());
        output_ = std::make_unique<RecordingOutput>(*object_, pool_);
    }

    void TearDown() override {
        output_.reset();
        pool_ = nullptr;
        object_ = nullptr;
    }

    CycleRow const& cycle() const { return GetParam().cycle; }
    std::size_t publishings(bool newMap) const {
        return (newMap && cycle().publishesEarly ? 1u : 0u) + (cycle().publishesAtEnd ? 1u : 0u);
    }
    void change() {
        for (Setting const& setting : cycle().change)
            set(*object_, setting.name, setting.text);
    }
    bool mustUpdate() const { return object_->must_update(VRequest(pool_), 0.0); }

    ObjectPtr object_;
    PoolPtr pool_;
    std::unique_ptr<RecordingOutput> output_;
};

TEST_P(Update, AlwaysAnswersTrue) {
    EXPECT_TRUE(forceUpdate(*object_, pool_));
    EXPECT_TRUE(forceUpdate(*object_, pool_));
}

TEST_P(Update, AtFirstPublishesOneMapAsOftenAsItsRuleSays) {
    update(*object_, pool_);
    ASSERT_EQ(output_->offers().size(), publishings(true));
    for (Offer const& offer : output_->offers())
        EXPECT_EQ(offer.map.get(), output_->map().get());
    EXPECT_TRUE(output_->map());
}

TEST_P(Update, AfterwardsPublishesOnlyAtTheEnd) {
    update(*object_, pool_);
    output_->clear();
    forceUpdate(*object_, pool_);
    EXPECT_EQ(output_->offers().size(), publishings(cycle().makes == Makes::Always));
}

TEST_P(Update, NotifiesOnceForEachPublishingThatTheOutputTakes) {
    update(*object_, pool_);
    EXPECT_EQ(output_->notifications(), static_cast<int>(publishings(true)));
}

TEST_P(Update, NotifiesNobodyIfTheOutputReportsNoChange) {
    output_->answer(false);
    update(*object_, pool_);
    EXPECT_EQ(output_->offers().size(), publishings(true));
    EXPECT_EQ(output_->notifications(), 0);
}

TEST_P(Update, PublishesEarlyBeforeTheIconAndLateBehindIt) {
    update(*object_, pool_);
    ASSERT_FALSE(output_->offers().empty());
    if (cycle().publishesEarly) {
        EXPECT_EQ(output_->offers().front().icons, 0u);
    }
    if (cycle().publishesAtEnd) {
        EXPECT_EQ(output_->offers().back().icons, cycle().drawsIcon ? 1u : 0u);
    }
}

TEST_P(Update, DrawsOneIconOrNone) {
    for (int i = 0; i < 2; ++i) {
        output_->clear();
        forceUpdate(*object_, pool_);
        EXPECT_EQ(output_->icons(), cycle().drawsIcon ? 1u : 0u);
    }
    EXPECT_EQ(object_->xpm_icon().empty(), !cycle().drawsIcon);
}

TEST_P(Update, PublishesAMapThatAnswersBeforeAnyFieldIsSet) {
    update(*object_, pool_);
    for (Offer const& offer : output_->offers()) {
        EXPECT_EQ(offer.least, 0);
        EXPECT_EQ(offer.greatest, 1);
        EXPECT_FALSE(offer.labelled);
    }
}

TEST_P(Update, KeepsTheMapUnlessItAlwaysMakesOne) {
    update(*object_, pool_);
    ColormapPtr const first = output_->map();
    update(*object_, pool_);
    forceUpdate(*object_, pool_);
    EXPECT_EQ(output_->map().get() == first.get(), cycle().makes != Makes::Always);
}

TEST_P(Update, ThroughRequestsKeepsTheMapAndItsColoursWhileNothingChanges) {
    ColormapPtr const first = update(*object_, pool_);
    output_->clear();
    EXPECT_EQ(update(*object_, pool_).get(), first.get());
    EXPECT_TRUE(output_->offers().empty()) << "no update was due";
}

TEST_P(Update, EmptiesTheCacheOfItsMap) {
    update(*object_, pool_);
    ColormapPtr const map = output_->map();
    Nucleo::WeakPtr<Nucleo::ChunkBase, Nucleo::ChunkBase> chunk;
    {
        Nucleo::StrongPtr<Nucleo::Chunk<double>, Nucleo::ChunkBase> const cache =
            new Nucleo::Chunk<double>(3);
        map->cachedChunk = cache;
        chunk = Nucleo::WeakPtr<Nucleo::ChunkBase, Nucleo::ChunkBase>(cache);
    }
    forceUpdate(*object_, pool_);
    EXPECT_EQ(chunk.alive(), !cycle().dropsCache);
}

TEST_P(Update, GivesTheMapTheAgeThatItsRuleSays) {
    update(*object_, pool_);
    change();
    Ageable::GlobalTime.fetch_add(10);
    Ageable::Stamp const before = Ageable::now();
    Ageable::Stamp const madeBefore = output_->map()->age();
    output_->clear();
    forceUpdate(*object_, pool_);
    Ageable::Stamp const age = output_->map()->age();
    Ageable::Stamp const slots = object_->age(pool_);
    switch (cycle().age) {
    case Age::Touched:
        EXPECT_EQ(age, before + 1);
        EXPECT_EQ(output_->offers().back().mapAge, age) << "touched, then offered";
        break;
    case Age::Kept:
        EXPECT_EQ(Ageable::now(), before) << "nothing advances the time";
        EXPECT_EQ(age, before) << "the new map starts with the present time";
        break;
    case Age::Raised:
        EXPECT_EQ(Ageable::now(), before) << "nothing advances the time";
        EXPECT_EQ(age, std::max(madeBefore, slots));
        break;
    case Age::RaisedThenTouched:
        EXPECT_EQ(age, before + 1);
        EXPECT_EQ(output_->offers().back().mapAge, std::max(madeBefore, slots))
            << "raised, offered, then touched";
        break;
    }
}

TEST_P(Update, TreatsAForeignMapAsItsRuleSays) {
    ColormapPtr const foreign = new ForeignMap;
    foreign->cachedChunk = new Nucleo::Chunk<double>(1);
    Ageable::Stamp const ageBefore = foreign->age();
    update(*object_, pool_);
    output_->place(foreign);
    output_->clear();
    Ageable::GlobalTime.fetch_add(5);
    forceUpdate(*object_, pool_);
    bool const replaced = cycle().foreign == Foreign::Replaced;
    bool const drawn = cycle().foreign == Foreign::DrawnAndTouched || replaced;
    EXPECT_EQ(output_->map().get() != foreign.get(), replaced);
    EXPECT_EQ(output_->offers().size(), publishings(replaced));
    EXPECT_EQ(output_->icons(), drawn ? 1u : 0u);
    EXPECT_TRUE(foreign->cachedChunk) << "the cache of a foreign map is not the object's";
    switch (cycle().foreign) {
    case Foreign::OfferedBack:
    case Foreign::Replaced:
        EXPECT_EQ(foreign->age(), ageBefore);
        break;
    case Foreign::DrawnAndTouched:
        EXPECT_EQ(foreign->age(), Ageable::now());
        break;
    case Foreign::Raised:
        EXPECT_EQ(foreign->age(), std::max(ageBefore, object_->age(pool_)));
        break;
    }
}

TEST_P(Update, TellsNobodyIfTheOutputHasNoValueForMaps) {
    PoolPtr const pool = makePool("other");
    VParameter const& output = *tincture(*object_).output();
    ValuePtr const number = new VValue<int>(7);
    output.addShadow(pool);
    pool->createVariable(output, number);
    EXPECT_TRUE(forceUpdate(*object_, pool));
    EXPECT_EQ(output_->notifications(), 0);
    EXPECT_EQ(pool->retrieveValue(output.Name()).get(), number.get());
    EXPECT_EQ(number->text(), "7");
}

TEST_P(Update, MakesANewMapInThePlaceOfADyingOne) {
    RecordingSpeaker const quiet;
    ColormapPtr const dying = new ForeignMap;
    update(*object_, pool_);
    output_->place(dying);
    delete dying.get();  // as an unload deletes what others still hold
    EXPECT_EQ(mustUpdate(), cycle().ownMustUpdate);
    forceUpdate(*object_, pool_);
    EXPECT_TRUE(output_->map());
    EXPECT_FALSE(mustUpdate());
}

TEST_P(Update, IsDueOnAFreshObjectAndNotAfterAnUpdate) {
    EXPECT_TRUE(mustUpdate());
    update(*object_, pool_);
    EXPECT_FALSE(mustUpdate());
}

TEST_P(Update, OfAnObjectWithItsOwnRuleIsDueOnlyWithoutAMap) {
    update(*object_, pool_);
    if (cycle().ownMustUpdate) {
        change();
        EXPECT_FALSE(mustUpdate()) << "it asks by itself only when there is no map at all";
        output_->place(new ForeignMap);
        EXPECT_FALSE(mustUpdate()) << "any map will do";
        output_->place(nullptr);
        EXPECT_TRUE(mustUpdate());
    } else {
        output_->place(nullptr);
        EXPECT_FALSE(mustUpdate()) << "the host's own rule does not look at the map";
        change();
        EXPECT_EQ(mustUpdate(), !cycle().change.empty()) << "but knows of the change";
    }
}

TEST_P(Update, MakesAMapForEachPool) {
    PoolPtr const other = makePool("other");
    ColormapPtr const first = update(*object_, pool_);
    ColormapPtr const second = update(*object_, other);
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_NE(first.get(), second.get());
    for (Setting const& setting : cycle().change)
        set(*object_, setting.name, setting.text, other);
    ColormapPtr const unchanged = update(*object_, pool_);
    update(*object_, other);
    forceUpdate(*object_, other);
    EXPECT_EQ(unchanged.get(), first.get());
    bool const differ = !(mapOf(*object_, other)->getColor(0.1) == first->getColor(0.1));
    EXPECT_EQ(differ, !cycle().change.empty());
}

TEST_P(Update, WithoutAPoolUsesTheParametersOwnValues) {
    EXPECT_TRUE(forceUpdate(*object_, nullptr));
    EXPECT_TRUE(mapOf(*object_, nullptr));
}

std::string nameOf(testing::TestParamInfo<MapDescription> const& map) {
    return testName(map.param.name);
}

INSTANTIATE_TEST_SUITE_P(Maps, Update, testing::ValuesIn(describedMaps()), nameOf);

/// Maps that depend on a parameter.
std::vector<MapDescription> changingMaps() {
    std::vector<MapDescription> maps;
    for (MapDescription const& map : describedMaps())
        if (!map.cycle.change.empty())
            maps.push_back(map);
    return maps;
}

class ChangedUpdate : public Update {};

TEST_P(ChangedUpdate, ReplacesOrRewritesTheMap) {
    ColormapPtr const first = update(*object_, pool_);
    rgba_float_t const before = first->getColor(0.1);
    change();
    update(*object_, pool_);
    forceUpdate(*object_, pool_);  // an object with its own must_update asks for none here
    EXPECT_EQ(output_->map().get() == first.get(), cycle().makes == Makes::WhenNone);
    EXPECT_EQ(first->getColor(0.1) == before, cycle().makes != Makes::WhenNone)
        << "a map that is replaced never changes";
    EXPECT_FALSE(output_->map()->getColor(0.1) == before);
}

TEST_P(ChangedUpdate, KeepsTheMapWhenOnlyTheAgeOfTheParameterHasChangedUnlessItReplaces) {
    ColormapPtr const first = update(*object_, pool_);
    ParameterRow const& parameter = GetParam().parameters.front();
    set(*object_, parameter.name, parameter.defaultText);
    update(*object_, pool_);
    EXPECT_EQ(output_->map().get() == first.get(), cycle().makes == Makes::WhenNone);
}

TEST_P(ChangedUpdate, ReplacesEvenAForeignMapIfItReplaces) {
    update(*object_, pool_);
    ColormapPtr const foreign = new ForeignMap;
    output_->place(foreign);
    change();
    forceUpdate(*object_, pool_);
    EXPECT_EQ(output_->map().get() == foreign.get(), cycle().makes == Makes::WhenNone);
}

/// A consumer's cache that looks a colour up when it goes.
class LookingCache : public Nucleo::Chunk<double> {
public:
    LookingCache(Colormap const& map, rgba_float_t& seen) : Chunk(1), map_(map), seen_(seen) {}
    ~LookingCache() override { seen_ = map_.getColor(0.1); }

private:
    Colormap const& map_;
    rgba_float_t& seen_;
};

TEST_P(ChangedUpdate, AnswersAnewWhenTheCacheGoesUnlessItReplaces) {
    if (cycle().makes != Makes::WhenNone)
        return;  // the map that goes with its cache never changes
    ColormapPtr const map = update(*object_, pool_);
    rgba_float_t const before = map->getColor(0.1);
    rgba_float_t seen = before;
    map->cachedChunk = new LookingCache(*map, seen);
    change();
    forceUpdate(*object_, pool_);
    EXPECT_FALSE(seen == before);
    EXPECT_EQ(seen, map->getColor(0.1));
}

INSTANTIATE_TEST_SUITE_P(Maps, ChangedUpdate, testing::ValuesIn(changingMaps()), nameOf);

/// Maps that take the age of the parameters.
std::vector<MapDescription> raisedMaps() {
    std::vector<MapDescription> maps;
    for (MapDescription const& map : describedMaps())
        if (map.cycle.age == Age::Raised || map.cycle.age == Age::RaisedThenTouched)
            maps.push_back(map);
    return maps;
}

class RaisedUpdate : public Update {
protected:
    /// The age of a map after an update, or where a touch follows, before that.
    Ageable::Stamp ageGiven(ColormapPtr const& map) {
        output_->clear();
        forceUpdate(*object_, pool_);
        return cycle().age == Age::Raised ? map->age() : output_->offers().back().mapAge;
    }
};

TEST_P(RaisedUpdate, RaisesTheAgeOfAForeignMapToo) {
    update(*object_, pool_);
    ColormapPtr const foreign = new ForeignMap;
    Ageable::Stamp const before = foreign->age();
    output_->place(foreign);
    change();
    ASSERT_GT(object_->age(pool_), before);
    EXPECT_EQ(ageGiven(foreign), object_->age(pool_));
}

TEST_P(RaisedUpdate, NeverLowersTheAge) {
    update(*object_, pool_);
    ColormapPtr const map = output_->map();
    Ageable::Stamp const late = Ageable::now() + 100;
    map->setAge(late);
    EXPECT_EQ(ageGiven(map), late);
}

TEST_P(RaisedUpdate, LeavesTheAgeWhereNoParameterHasChanged) {
    update(*object_, pool_);
    ColormapPtr const map = output_->map();
    Ageable::Stamp const age = map->age();
    Ageable::GlobalTime.fetch_add(10);
    EXPECT_EQ(ageGiven(map), age);
}

/// Notes how old it is whenever a colour is looked up in it.
class AgedMap : public ForeignMap {
public:
    rgba_float_t getColor(double value) const override {
        ages.push_back(age());
        return ForeignMap::getColor(value);
    }
    mutable std::vector<Ageable::Stamp> ages;
};

TEST_P(RaisedUpdate, HasRaisedTheAgeWhenItDrawsTheIcon) {
    update(*object_, pool_);
    StrongPtr<AgedMap, Colormap> const foreign = new AgedMap;
    output_->place(foreign);
    change();
    forceUpdate(*object_, pool_);
    EXPECT_EQ(foreign->ages.empty(), !cycle().drawsIcon);
    for (Ageable::Stamp const age : foreign->ages)
        EXPECT_EQ(age, object_->age(pool_));
}

INSTANTIATE_TEST_SUITE_P(Maps, RaisedUpdate, testing::ValuesIn(raisedMaps()), nameOf);

/// Two objects ask one of their slots for its age by itself. It differs from the
/// container's where another slot has taken the name.
struct AgedSlot {
    std::string key, slot;
};

class SlotAge : public PluginTest, public testing::WithParamInterface<AgedSlot> {};

TEST_P(SlotAge, RaisesThatOfTheMapByItself) {
    ObjectPtr const object = create(GetParam().key);
    PoolPtr const pool = makePool();
    RecordingOutput output(*object, pool);
    ColormapPtr const map = update(*object, pool);
    SlotPtr const slot = object->slot(GetParam().slot);
    VSlotGlobals::addParameter(object.get(), GetParam().slot, 0, slot->ownParameter()->copy(),
                               true);
    ASSERT_NE(object->slot(GetParam().slot).get(), slot.get());
    slot->ownParameter()->touch();
    ASSERT_GT(slot->age(pool), object->age(pool));
    output.clear();
    forceUpdate(*object, pool);
    EXPECT_EQ(output.offers().empty() ? map->age() : output.offers().back().mapAge,
              slot->age(pool));
}

INSTANTIATE_TEST_SUITE_P(Maps, SlotAge,
                         testing::Values(AgedSlot{"Colormaps/Glow", "inverted"},
                                         AgedSlot{"Colormaps/ZeroInfinity", "range"}),
                         [](auto const& each) { return testName(each.param.key); });

}  // namespace
}  // namespace tests
