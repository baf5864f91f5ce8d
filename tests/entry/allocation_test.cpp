/// Every allocation of creation and update fails in turn: the exception passes
/// out, nothing leaks, and the next call works.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>

#include "host/creators/VSource.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "tests/support/DiagnosticText.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/objects.hpp"
#include "workbench/platform/FailingAllocation.hpp"

namespace tests {
namespace {

using namespace Orlo;
using workbench::Failing;
using workbench::FailingAllocation;
using workbench::liveAllocations;

constexpr int MostPoints = 100000;

struct Row {
    std::string name;
    Failing mode;
};

class Allocation : public PluginTest, public testing::WithParamInterface<Row> {
protected:
    /// Lets the n-th allocation of `call` fail, for every n; `prepare` stands
    /// before each, `check` after it. Gives the number of points found.
    int failEverywhere(std::function<void()> const& prepare, std::function<void()> const& call,
                       std::function<void(bool failed)> const& check) const {
        for (int n = 1; n < MostPoints; ++n) {
            prepare();
            bool failed = false, thrown = false;
            {
                FailingAllocation const failing(n, GetParam().mode);
                try {
                    call();
                } catch (std::bad_alloc const&) {
                    thrown = true;
                }
                failed = failing.hasFailed();
            }
            EXPECT_EQ(thrown, failed) << "the exception of allocation " << n << " passes out";
            check(failed);
            if (!failed)
                return n - 1;
        }
        ADD_FAILURE() << "no end of allocations";
        return 0;
    }

    static std::vector<std::string> keys() {
        std::vector<std::string> found;
        for (auto const& creator : catalogue())
            found.push_back(creator->keyname("/"));
        return found;
    }

    ObjectPtr object_;
    PoolPtr pool_;

    void TearDown() override { letGo(); }
    void letGo() {
        object_ = nullptr;
        pool_ = nullptr;
    }
};

TEST_P(Allocation, FailingInCreateLeavesNothingBehind) {
    int points = 0;
    for (std::string const& key : keys()) {
        SCOPED_TRACE(key);
        create(key, "warm-up", new VCreationPreferences("given"));
        PreferencesPtr const given = new VCreationPreferences("given");
        WeakCreatorPtr const creator = findCreator(key);
        long before = 0;
        points += failEverywhere([&] { before = liveAllocations(); },
                                 [&] {
                                     object_ = creator->create(
                                         "a name that is too long to be stored in place",
                                         Nucleo::Intercube(), given);
                                 },
                                 [&](bool failed) {
                                     EXPECT_EQ(bool(object_), !failed);
                                     object_ = nullptr;
                                     EXPECT_EQ(liveAllocations(), before);
                                     EXPECT_TRUE(creator->instances().empty());
                                 });
    }
    std::printf("%d allocations failed in create\n", points);
    EXPECT_GT(points, 0);
}

TEST_P(Allocation, FailingInTheFirstUpdateLeavesAnObjectThatUpdatesTheNextTime) {
    int points = 0;
    for (std::string const& key : keys()) {
        SCOPED_TRACE(key);
        update(*create(key), makePool());  // a warm-up
        long before = 0;
        points += failEverywhere(
            [&] {
                before = liveAllocations();
                object_ = create(key);
                pool_ = makePool();
            },
            [&] { forceUpdate(*object_, pool_); },
            [&](bool) {
                EXPECT_TRUE(update(*object_, pool_)) << "the next call works";
                letGo();
                EXPECT_EQ(liveAllocations(), before) << "nothing leaks";
            });
    }
    std::printf("%d allocations failed in the first update\n", points);
    EXPECT_GT(points, 0);
}

TEST_P(Allocation, FailingInALaterUpdateLeavesTheOldMapAsItWas) {
    int points = 0;
    for (std::string const& key : keys()) {
        SCOPED_TRACE(key);
        std::vector<rgba_float_t> colours(257);
        ColormapPtr map;
        unsigned icons = 0;
        Nucleo::Ageable::Stamp time = 0;
        long before = 0;
        update(*create(key), makePool());  // a warm-up
        points += failEverywhere(
            [&] {
                before = liveAllocations();
                object_ = create(key);
                pool_ = makePool();
                map = update(*object_, pool_);
                icons = tincture(*object_).iconCount();
                time = Nucleo::Ageable::now();
                for (int i = 0; i <= 256; ++i)
                    colours[static_cast<std::size_t>(i)] = map->getColor(i / 256.0);
            },
            [&] { forceUpdate(*object_, pool_); },
            [&](bool failed) {
                for (int i = 0; i <= 256; ++i)
                    EXPECT_EQ(map->getColor(i / 256.0), colours[static_cast<std::size_t>(i)]);
                if (failed) {
                    EXPECT_EQ(mapOf(*object_, pool_).get(), map.get());
                    bool const drawn = tincture(*object_).iconCount() != icons;
                    EXPECT_TRUE(drawn || Nucleo::Ageable::now() == time)
                        << "the icon comes before the touch";
                }
                EXPECT_TRUE(forceUpdate(*object_, pool_)) << "the next call works";
                map = nullptr;
                letGo();
                EXPECT_EQ(liveAllocations(), before) << "nothing leaks";
            });
    }
    std::printf("%d allocations failed in a later update\n", points);
    EXPECT_GT(points, 0);
}

/// A map, its counts and its table, the icon, a text: no more, whatever it shows.
TEST_P(Allocation, HappensFourTimesAtMostInAnUpdateWithoutAChange) {
    for (std::string const& key : keys()) {
        SCOPED_TRACE(key);
        int const points = failEverywhere(
            [&] {
                object_ = create(key);
                pool_ = makePool();
                update(*object_, pool_);
            },
            [&] { forceUpdate(*object_, pool_); }, [](bool) {});
        EXPECT_LE(points, 4);
    }
}

/// What is remembered of a selection may fail without anybody's noticing: then an
/// allocation fails and the update does not. A background for each call keeps it
/// from finding what is remembered of the former ones.
TEST_P(Allocation, FailingInASelectionEndsTheUpdateOrLeavesTheColoursRight) {
    std::string const key = "Colormaps/MaxDistinguishableColors";
    for (int i = 1; i <= 8; ++i) {  // as many tables as are remembered, and more
        ObjectPtr const warm = create(key);
        set(*warm, "Number of Colors", "3");
        set(*warm, "Background Color 1", "(0,0," + std::to_string(i) + ",1)");
        update(*warm, makePool());
    }
    int harmless = 0, n = 0;
    for (bool failed = true; failed && n < MostPoints;) {
        std::string const background = "(0,0," + std::to_string(++n) + ",1)";
        object_ = create(key);
        pool_ = makePool();
        set(*object_, "Number of Colors", "3");
        set(*object_, "RGB Steps", "5");
        set(*object_, "Background Color 2", background);
        bool thrown = false;
        {
            FailingAllocation const failing(n, GetParam().mode);
            try {
                forceUpdate(*object_, pool_);
            } catch (std::bad_alloc const&) {
                thrown = true;
            }
            failed = failing.hasFailed();
        }
        EXPECT_TRUE(failed || !thrown);
        harmless += failed && !thrown ? 1 : 0;
        ColormapPtr const first = mapOf(*object_, pool_);
        EXPECT_NE(bool(first), thrown) << "allocation " << n;
        ColormapPtr const again = update(*object_, pool_);
        for (int i = 0; first && i < 3; ++i)
            EXPECT_EQ(first->getColor(i / 3.0), again->getColor(i / 3.0));
        letGo();
    }
    EXPECT_GT(n, 20) << "a selection took place";
    EXPECT_EQ(harmless, GetParam().mode == Failing::Once ? 2 : 0) << "an entry and its table";
}

/// An object that tells, when it goes, whether it would have answered a request.
class Probe : public Tincture {
public:
    Probe(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}
    ~Probe() override { answered = request(*asked, 0.0, nullptr, nullptr); }
    bool update(VRequest&, double) override { return true; }

    static inline VRequest* asked = nullptr;
    static inline bool answered = false;
};

/// The last allocation of all is that of the creator's note of its new object.
TEST_P(Allocation, FailingWhereTheObjectLearnsItsCreatorComesBehindTheMessagesAndBeforeRequests) {
    VRequest request(makePool());
    Probe::asked = &request;
    Nucleo::Auto<VCreator<Probe, void>> const entry(VCreatorProperties(NameIs("Probe")), 0, nullptr,
                                                    false, InterfaceToken);
    std::vector<std::string> lines;
    std::unique_ptr<DiagnosticText> text;
    failEverywhere(
        [&] {
            text.reset();  // before the next one takes its place
            text = std::make_unique<DiagnosticText>(100);
            Probe::answered = true;
        },
        [&] { object_ = entry.create("one", Nucleo::Intercube(), nullptr); },
        [&](bool failed) {
            if (failed)
                lines = text->lines();
            EXPECT_TRUE(!failed || !Probe::answered || lines.size() < 2);
            object_ = nullptr;
        });
    EXPECT_EQ(lines, (std::vector<std::string>{"VCreator::create(one)",
                                               "VCreator::create(one) got derived object"}));
    EXPECT_TRUE(Probe::answered) << "once it is made it answers";
}

TEST_P(Allocation, NeverHappensInALookup) {
    for (std::string const& key : keys()) {
        SCOPED_TRACE(key);
        ColormapPtr const map = update(*create(key), makePool());
        FailingAllocation const failing(1, GetParam().mode);
        for (int i = -10; i <= 300; ++i)
            map->getColor(i / 256.0);
        EXPECT_FALSE(failing.hasFailed());
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, Allocation,
                         testing::Values(Row{"Once", Failing::Once},
                                         Row{"FromThenOn", Failing::FromThen}),
                         [](auto const& row) { return row.param.name; });

}  // namespace
}  // namespace tests
