/// Lookups on two threads while a third one changes parameters and updates.
#include "tests/support/PluginTest.hpp"
#include "tests/support/requiredEntries.hpp"
#include "tests/threads/Alternation.hpp"
#include "tests/threads/Readers.hpp"

namespace tests {

/// Reads all that a consumer reads of a map; whether what never changes is right.
bool readAll(Orlo::Colormap const& map) {
    return coloursOf(map).size() == scalars().size() && map.getMin() == 0 && map.getMax() == 1 &&
           map.getSize() > 0 && map.getLabel().empty() && map.getExtra() == 0 && map.age() > 0;
}

/// Brings an object into a state.
void bringTo(unsigned state, Orlo::VObject& object, Alternation const& alternation,
             Orlo::PoolPtr const& pool) {
    alternation.set(object, state);
    update(object, pool);
}

// The same of maps whose fields an update rewrites while they are read. The
// suppressions of the thread sanitizer name these two, so that all other maps
// stay watched; both, since it does not always know the older of two stacks.

[[gnu::noinline]] bool readBesideRewriting(Orlo::Colormap const& map) {
    bool const right = readAll(map);
    return right;
}

[[gnu::noinline]] void rewriteBesideReading(unsigned state, Orlo::VObject& object,
                                            Alternation const& alternation,
                                            Orlo::PoolPtr const& pool) {
    bringTo(state, object, alternation, pool);
}

namespace {

using namespace Orlo;

class Lookups : public PluginTest {};

/// Whether updates of the entry rewrite the map that stands in its output.
bool isRewritten(std::string const& key) {
    ObjectPtr const object = create(key);
    Alternation const alternation(*object);
    PoolPtr const pool = makePool();
    ColormapPtr const map = update(*object, pool);
    Nucleo::Ageable::Stamp const before = map->age();
    bringTo(1, *object, alternation, pool);
    return mapOf(*object, pool) == map && map->age() != before;
}

/// Updates an object in turn from one state to the other while two threads read
/// the map that stood first in its output; gives the state it is left in.
unsigned updateWhileRead(VObject& object, PoolPtr const& pool, bool rewritten) {
    auto* const read = rewritten ? readBesideRewriting : readAll;
    auto* const bring = rewritten ? rewriteBesideReading : bringTo;
    Alternation const alternation(object);
    ColormapPtr const map = update(object, pool);
    std::atomic<int> failures{0};
    unsigned state = 0;
    {
        Readers const readers([&] {
            if (!read(*map))
                failures.fetch_add(1, std::memory_order_relaxed);
        });
        whileReading(readers, [&](unsigned round) {
            state = round % 2;
            bring(state, object, alternation, pool);
        });
    }
    EXPECT_EQ(failures, 0);
    return state;
}

TEST_F(Lookups, OfEveryMapRunBesideItsUpdates) {
    ASSERT_GE(keys().size(), requiredEntries.size());
    for (std::string const& key : keys()) {
        SCOPED_TRACE(key);
        std::array<Colours, 2> const expected = coloursOfBothStates(key);
        ObjectPtr const object = create(key);
        PoolPtr const pool = makePool();
        unsigned const state = updateWhileRead(*object, pool, isRewritten(key));
        EXPECT_TRUE(same(coloursOf(*mapOf(*object, pool)), expected[state]))
            << "the last update counts";
    }
}

/// Entries whose published maps never change: a new one takes their place.
constexpr char const* Replaced[] = {"Colormaps/BathymetricColors", "Colormaps/Hypsometric",
                                    "Colormaps/TopoBathy", "Colormaps/Topographic",
                                    "Colormaps/MaxDistinguishableColors"};

TEST_F(Lookups, OfAMapThatIsReplacedNeverChange) {
    for (std::string const key : Replaced) {
        SCOPED_TRACE(key);
        Colours const expected = coloursOfBothStates(key)[0];
        ObjectPtr const object = create(key);
        Alternation const alternation(*object);
        PoolPtr const pool = makePool();
        ColormapPtr const held = update(*object, pool);
        std::atomic<long> changed{0};
        Readers const readers([&] {
            if (!same(coloursOf(*held), expected))
                changed.fetch_add(1, std::memory_order_relaxed);
        });
        whileReading(readers,
                     [&](unsigned round) { bringTo(round + 1, *object, alternation, pool); });
        EXPECT_EQ(changed, 0);
    }
}

/// A consumer that takes the map anew from the output for each picture.
TEST_F(Lookups, OfWhateverMapStandsThereShowOneStateOrTheOtherNeverAMixture) {
    for (std::string const key : Replaced) {
        SCOPED_TRACE(key);
        std::array<Colours, 2> const expected = coloursOfBothStates(key);
        ASSERT_FALSE(same(expected[0], expected[1]));
        ObjectPtr const object = create(key);
        Alternation const alternation(*object);
        PoolPtr const pool = makePool();
        update(*object, pool);
        std::atomic<long> states[2]{}, mixtures{0};
        {
            Readers const readers([&] {
                ColormapPtr const map = mapOf(*object, pool);
                Colours const colours = coloursOf(*map);
                auto& seen = same(colours, expected[0])   ? states[0]
                             : same(colours, expected[1]) ? states[1]
                                                          : mixtures;
                seen.fetch_add(1, std::memory_order_relaxed);
            });
            whileReading(readers,
                         [&](unsigned round) { bringTo(round + 1, *object, alternation, pool); });
        }
        EXPECT_EQ(mixtures, 0);
        EXPECT_GT(states[0] + states[1], 0);
    }
}

}  // namespace
}  // namespace tests
