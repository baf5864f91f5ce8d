/// Memory: what is left behind, and what happens when there is none.
#include <new>

#include "workbench/platform/FailingAllocation.hpp"
#include "workbench/platform/ownProcess.hpp"
#include "workbench/validate/Host.hpp"
#include "workbench/validate/colours.hpp"
#include "workbench/validate/texts.hpp"

namespace workbench::validate {

namespace {

using namespace Orlo;

constexpr int MostPoints = 100000;
constexpr std::size_t MostGrowth = 1024;  // bytes in all, however often

std::vector<double> const& fewScalars() {
    static std::vector<double> const all = scalarsTo(65);
    return all;
}

/// What is allocated, as exactly as this system lets us know.
struct Heap {
    long blocks = liveAllocations();
    std::size_t bytes = heapBytes();
};

/// Does something over and over, and requires that nothing grows behind a warm-up.
template <class Work>
void requireNoGrowth(int rounds, Work const& work) {
    constexpr int WarmUp = 10;
    for (int i = 0; i < WarmUp; ++i)
        work();
    Heap const before;
    for (int i = 0; i < rounds; ++i)
        work();
    Heap const after;
    std::string const often = " more after " + std::to_string(rounds) + " times";
    require(after.blocks <= before.blocks,
            std::to_string(after.blocks - before.blocks) + " blocks" + often);
    require(after.bytes <= before.bytes + MostGrowth,
            std::to_string(after.bytes - before.bytes) + " bytes" + often);
}

void objects(Trial& trial) {
    int const rounds = trial.times(200, 1000, 20000);
    withEntries(trial, [&](WeakCreatorPtr const& entry) {
        requireNoGrowth(rounds, [&] { create(entry); });
    });
}

void updates(Trial& trial) {
    int const rounds = trial.times(200, 500, 10000);
    withMaps(trial, [&](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        requireNoGrowth(rounds, [&] { forceUpdate(*object, pool); });
        requireNoGrowth(rounds / 4, [&] { forceUpdate(*object, newPool()); });
    });
}

void settings(Trial& trial) {
    int const rounds = trial.times(100, 300, 5000);
    withMaps(trial, [&](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        std::vector<std::pair<std::string, std::string>> texts;
        for (SlotPtr const& slot : inputsOf(*object)) {
            VParameter const& parameter = *slot->ownParameter();
            if (std::string const other = otherText(parameter); !other.empty())
                texts.insert(texts.end(), {{slot->name(), other},
                                           {slot->name(), parameter.DefaultValue()->text()}});
        }
        if (texts.empty())
            return;
        std::size_t i = 0;
        requireNoGrowth(rounds, [&] {
            auto const& [name, text] = texts[i++ % texts.size()];
            setParameter(*object, name, text);
            forceUpdate(*object, pool);
        });
    });
}

// --- Failing allocations

/// An allocation that fails, and one that may fail while the work is tried again.
struct Point {
    int n;
    Failing mode;
    int again = 0;  ///< 0: none fails the second time
};

/// Runs the work with a failing allocation. What passes out must be `std::bad_alloc`,
/// and only if an allocation has failed. Gives whether one has.
template <class Work>
bool hasFailed(int n, Failing mode, Work const& work) {
    FailingAllocation const failing(n, mode);
    try {
        work();
    } catch (std::bad_alloc const&) {
        if (!failing.hasFailed())
            fail("std::bad_alloc is thrown though no allocation has failed");
    } catch (Verdict const&) {
        throw;
    } catch (...) {
        fail("what passes out is no std::bad_alloc");
    }
    return failing.hasFailed();
}

/// What a test of failing allocations does: `prepare` and `check` run as usual, `work`
/// with a failing one.
struct Steps {
    std::function<void()> prepare, work, check;
};

std::string nameOf(Point const& point) {
    std::string text = "allocation " + std::to_string(point.n) + " fails" +
                       (point.mode == Failing::FromThen ? " and all after it" : "");
    return point.again == 0
               ? text
               : text + ", and then number " + std::to_string(point.again) + " of the next try";
}

/// Lets every allocation of the work fail in turn, until a run meets no failure. In
/// pairs, one of the first allocations of the next try fails too. Gives the number of
/// runs that met a failure.
int failEverywhere(bool inPairs, Steps const& steps) {
    int const mostAgain = inPairs ? 3 : 0;
    int points = 0;
    for (Failing const mode : {Failing::Once, Failing::FromThen})
        for (int again = inPairs ? 1 : 0; again <= mostAgain; ++again)
            for (int n = 1;; ++n) {
                Point const point{n, mode, again};
                require(n < MostPoints, "its allocations have no end");
                bool failed = false;
                inOwnWords(nameOf(point), [&] {
                    steps.prepare();
                    failed = hasFailed(n, mode, steps.work);
                    if (again > 0)
                        hasFailed(again, Failing::Once, steps.work);
                    steps.check();
                });
                if (!failed)
                    break;
                ++points;
            }
    return points;
}

/// The same, and requires that nothing is left behind.
int failEverywhereWithoutLeak(bool inPairs, Steps const& steps) {
    steps.prepare();  // once as usual, for what is made once and stays
    steps.work();
    steps.check();
    long before = 0;
    return failEverywhere(inPairs,
                          {[&] {
                               before = liveAllocations();
                               steps.prepare();
                           },
                           steps.work,
                           [&] {
                               steps.check();
                               // No text before the count, which would be counted.
                               if (long const now = liveAllocations(); now != before)
                                   fail(std::to_string(now - before) + " blocks are left behind");
                           }});
}

void requireSight() {
    if (!seesAllocations())
        skip("on this system a program does not see the allocations of its libraries");
}

void tell(int points, Trial& trial) {
    trial.told = std::to_string(points) + " runs with a failing allocation";
}

void failCreate(bool inPairs, Trial& trial) {
    requireSight();
    int points = 0;
    withEntries(trial, [&](WeakCreatorPtr const& entry) {
        PreferencesPtr const given = new VCreationPreferences("given");
        Nucleo::Intercube const context;
        std::string const name = "a name that is too long to be stored in place";
        entry->create(name, context, given);  // a warm-up
        ObjectPtr object;
        auto const work = [&] { object = entry->create(name, context, given); };
        points += failEverywhereWithoutLeak(
            inPairs, {[] {}, work,
                      [&] {
                          object = nullptr;
                          require(entry->instances().empty(),
                                  "the entry knows an object that was never made");
                          work();
                          require(bool(object), "at the next try it makes no object");
                          object = nullptr;
                      }});
    });
    tell(points, trial);
}

/// An object, its pool, and its map as it was.
struct Node {
    ObjectPtr object;
    PoolPtr pool;
    ColormapPtr map;
    Colours colours;

    void make(WeakCreatorPtr const& entry) {
        object = create(entry);
        pool = newPool();
    }
    void update() {
        make(object->creator());
        map = updated(*object, pool);
        colours = coloursOf(*map, fewScalars());
    }
    void letGo() {
        map = nullptr;
        object = nullptr;
        pool = nullptr;
        Colours().swap(colours);
    }
};

void failFirstUpdate(bool inPairs, Trial& trial) {
    requireSight();
    int points = 0;
    withMaps(trial, [&](WeakCreatorPtr const& entry, ObjectPtr const& first) {
        Colours const expected = coloursOf(*updated(*first, newPool()), fewScalars());
        Node node;
        points += failEverywhereWithoutLeak(
            inPairs, {[&] { node.make(entry); }, [&] { forceUpdate(*node.object, node.pool); },
                      [&] {
                          ColormapPtr map = updated(*node.object, node.pool);
                          std::string const change = difference(*map, fewScalars(), expected);
                          require(change.empty(), "at the next update " + change);
                          map = nullptr;
                          node.letGo();
                      }});
    });
    tell(points, trial);
}

void failNextUpdate(bool inPairs, Trial& trial) {
    requireSight();
    int points = 0;
    withMaps(trial, [&](WeakCreatorPtr const& entry, ObjectPtr const& first) {
        updated(*first, newPool());
        Node node;
        points += failEverywhereWithoutLeak(
            inPairs,
            {[&] {
                 node.object = create(entry);
                 node.update();
             },
             [&] { forceUpdate(*node.object, node.pool); },
             [&] {
                 std::string const change = difference(*node.map, fewScalars(), node.colours);
                 require(change.empty(), "of the old map " + change);
                 require(forceUpdate(*node.object, node.pool), "the next update gives false");
                 node.letGo();
             }});
    });
    tell(points, trial);
}

void failSet(bool inPairs, Trial& trial) {
    requireSight();
    int points = 0;
    withMaps(trial, [&](WeakCreatorPtr const& entry, ObjectPtr const& first) {
        updated(*first, newPool());
        for (SlotPtr const& slot : inputsOf(*first)) {
            std::string const name = slot->name(), other = otherText(*slot->ownParameter());
            if (other.empty())
                continue;
            setParameter(*create(entry), name, other, newPool());  // a warm-up
            Node node;
            inOwnWords("parameter " + inQuotes(name), [&] {
                points += failEverywhereWithoutLeak(
                    inPairs, {[&] { node.make(entry); },
                              [&] { setParameter(*node.object, name, other, node.pool); },
                              [&] {
                                  setParameter(*node.object, name, other, node.pool);
                                  updated(*node.object, node.pool);
                                  node.letGo();
                              }});
            });
        }
    });
    tell(points, trial);
}

void failLoad(Trial&) {
    skip("an exception that passes through the system's loader leaves it in no state to go on");
}

template <void (*run)(bool, Trial&), bool inPairs>
void failing(Trial& trial) {
    run(inPairs, trial);
}

}  // namespace

std::vector<Test> memoryTests() {
    return {
        {"memory/objects",
         "Objects made and deleted leave nothing behind.",
         {"cycle/objects-go"},
         objects},
        {"memory/updates", "Updates leave nothing behind.", {"memory/objects"}, updates},
        {"memory/settings",
         "Changes of parameters leave nothing behind.",
         {"memory/updates"},
         settings},
        {"memory/fail-load",
         "An allocation that fails while it is loaded ends the load.",
         {"file/loads"},
         failLoad},
        {"memory/fail-create",
         "An allocation that fails while an object is made passes out as std::bad_alloc, and "
         "leaves nothing behind.",
         {"memory/objects"},
         failing<failCreate, false>,
         120},
        {"memory/fail-set",
         "One that fails while a parameter is set leaves an object that can be set again.",
         {"memory/updates"},
         failing<failSet, false>,
         120},
        {"memory/fail-update",
         "One that fails in the first update leaves an object that updates the next time.",
         {"memory/updates"},
         failing<failFirstUpdate, false>,
         120},
        {"memory/fail-next-update",
         "One that fails in a later update leaves the old map right.",
         {"memory/updates"},
         failing<failNextUpdate, false>,
         120},
        {"memory/fail-create-pairs",
         "The same when another one fails at the next try: making.",
         {"memory/fail-create"},
         failing<failCreate, true>,
         240},
        {"memory/fail-update-pairs",
         "The same when another one fails at the next try: updating.",
         {"memory/fail-update"},
         failing<failFirstUpdate, true>,
         240},
        {"memory/fail-next-update-pairs",
         "The same when another one fails at the next try: updating again.",
         {"memory/fail-next-update"},
         failing<failNextUpdate, true>,
         240},
    };
}

}  // namespace workbench::validate
