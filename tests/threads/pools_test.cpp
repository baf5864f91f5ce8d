/// One object in two contexts, and maps that outlive their objects, on several
/// threads.
#include <atomic>
#include <thread>

#include "tests/support/PluginTest.hpp"
#include "tests/support/RecordingSpeaker.hpp"
#include "tests/support/Rendezvous.hpp"
#include "tests/threads/Alternation.hpp"

namespace tests {
namespace {

using namespace Orlo;

constexpr unsigned Rounds = 200;

class Pools : public PluginTest {};

TEST_F(Pools, OfOneObjectAreUpdatedFromTwoThreads) {
    for (std::string const& key : keys()) {
        SCOPED_TRACE(key);
        std::array<Colours, 2> const expected = coloursOfBothStates(key);
        ObjectPtr const object = create(key);
        Alternation const alternation(*object);
        std::atomic<unsigned> wrong{0};
        auto const work = [&](PoolPtr const& pool, unsigned first) {
            for (unsigned state = first; state < first + Rounds; ++state) {
                alternation.set(*object, state, pool);
                if (!same(coloursOf(*update(*object, pool)), expected[state % 2]))
                    wrong.fetch_add(1, std::memory_order_relaxed);
            }
        };
        std::thread one(work, makePool("one"), 0U);
        std::thread two(work, makePool("two"), 1U);
        one.join();
        two.join();
        EXPECT_EQ(wrong, 0U) << "each pool has its own values and its own map";
    }
}

/// Each thread asks for more tables in turn than are remembered, and all threads for
/// the same ones.
TEST_F(Pools, OfManyObjectsShareWhatIsRememberedOfSelections) {
    constexpr unsigned Threads = 4, Tables = 6;
    auto const coloursOf = [](VObject& object, PoolPtr const& pool, unsigned table) {
        tests::set(object, "Number of Colors", std::to_string(3 + table), pool);
        return tests::coloursOf(*update(object, pool));
    };
    auto const make = [] {
        ObjectPtr const object = create("Colormaps/MaxDistinguishableColors");
        tests::set(*object, "RGB Steps", "3");
        return object;
    };
    std::vector<Colours> expected;
    for (unsigned table = 0; table < Tables; ++table)
        expected.push_back(coloursOf(*make(), makePool(), table));
    std::atomic<unsigned> wrong{0};
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < Threads; ++i)
        threads.emplace_back([&, i, object = make(), pool = makePool()] {
            for (unsigned round = 0; round < Rounds; ++round) {
                unsigned const table = (round / 2 + i) % Tables;
                if (!same(coloursOf(*object, pool, table), expected[table]))
                    wrong.fetch_add(1, std::memory_order_relaxed);
                forceUpdate(*object, pool);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0U);
}

/// A map with a cache in it, held by whoever the result is given to.
ColormapPtr mapWithoutObject(std::string const& key) {
    ColormapPtr const map = update(*create(key), makePool());
    map->cachedChunk = new Nucleo::Chunk<double>(3);
    return map;
}

TEST_F(Pools, AndObjectsMayGoBeforeTheirMapsWhichDieOnAReader) {
    for (std::string const& key : keys()) {
        SCOPED_TRACE(key);
        Colours const expected = coloursOfBothStates(key)[0];
        ColormapPtr map = mapWithoutObject(key);
        Nucleo::WeakPtr<Colormap, Colormap> const seen(map);
        bool right = false;
        std::thread reader([&right, &expected, last = map]() mutable {
            right = same(coloursOf(*last), expected);
            last = nullptr;
        });
        map = nullptr;
        reader.join();
        EXPECT_TRUE(right);
        EXPECT_FALSE(seen.alive());
    }
}

TEST_F(Pools, LetAMapGoOnceWhoeverIsLast) {
    RecordingSpeaker const speaker;
    Rendezvous together(2);
    std::array<ColormapPtr, Rounds> first, second;
    std::vector<Nucleo::WeakPtr<Colormap, Colormap>> seen;
    for (unsigned i = 0; i < Rounds; ++i) {
        first[i] = second[i] = update(*create(keys()[i % keys().size()]), makePool());
        seen.emplace_back(first[i]);
    }
    auto const letGo = [&](std::array<ColormapPtr, Rounds>& maps) {
        for (ColormapPtr& map : maps) {
            together.arriveAndWait();
            map = nullptr;
        }
    };
    std::thread one([&] { letGo(first); });
    std::thread two([&] { letGo(second); });
    one.join();
    two.join();
    for (auto const& map : seen)
        EXPECT_EQ(map.controlBlock()->strongNow(), Nucleo::ControlBlock<Colormap>::Dead);
    EXPECT_TRUE(speaker.reports.empty());
}

}  // namespace
}  // namespace tests
