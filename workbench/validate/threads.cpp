/// Threads: consumers beside updates, pools beside pools.
#include <atomic>
#include <thread>

#include "workbench/platform/ownProcess.hpp"
#include "workbench/validate/Host.hpp"
#include "workbench/validate/colours.hpp"
#include "workbench/validate/texts.hpp"

namespace workbench::validate {

/// Reads a map as a consumer does while an update may rewrite it. The suppressions of
/// the thread sanitizer name this and the next one, and no others.
[[gnu::noinline]] std::size_t readBesideRewriting(Orlo::Colormap const& map,
                                                  std::vector<double> const& scalars) {
    std::size_t count = 0;
    for (double const scalar : scalars) {
        Tessar::rgba_float_t const colour = map.getColor(scalar);
        count += colour[0] == colour[0] ? 1U : 0U;
    }
    return count;
}

[[gnu::noinline]] void rewriteBesideReading(Orlo::VObject& object, Orlo::PoolPtr const& pool) {
    forceUpdate(object, pool);
}

namespace {

using namespace Orlo;

std::vector<double> const& fewScalars() {
    static std::vector<double> const all = scalarsTo(33);
    return all;
}

/// Threads that do the same until the object goes.
class Crew {
public:
    Crew(int count, std::function<void()> const& work) {
        for (int i = 0; i < count; ++i)
            threads_.emplace_back([this, work] {
                while (!ends_.load(std::memory_order_relaxed)) {
                    work();
                    rounds_.fetch_add(1, std::memory_order_relaxed);
                }
            });
    }
    Crew(Crew const&) = delete;
    Crew& operator=(Crew const&) = delete;
    ~Crew() {
        ends_.store(true, std::memory_order_relaxed);
        for (std::thread& thread : threads_)
            thread.join();
    }
    int rounds() const { return rounds_.load(std::memory_order_relaxed); }

private:
    std::atomic<bool> ends_{false};
    std::atomic<int> rounds_{0};
    std::vector<std::thread> threads_;
};

/// Runs the same on two threads, to its end.
void onTwoThreads(std::function<void(int)> const& work) {
    std::string seen;
    std::thread other([&] {
        try {
            inOwnWords("", [&] { work(1); });
        } catch (Verdict const& verdict) {
            seen = verdict.seen;
        }
    });
    std::string here;
    try {
        inOwnWords("", [&] { work(0); });
    } catch (Verdict const& verdict) {
        here = verdict.seen;
    }
    other.join();
    require(seen.empty() && here.empty(), seen.empty() ? here : seen);
}

void setOther(VObject& object, bool other, PoolPtr const& pool) {
    for (SlotPtr const& slot : inputsOf(object)) {
        VParameter const& parameter = *slot->ownParameter();
        std::string const text = otherText(parameter);
        if (!text.empty())
            setParameter(object, slot->name(), other ? text : parameter.DefaultValue()->text(),
                         pool);
    }
}

void readers(Trial& trial) {
    int const rounds = trial.times(100, 500, 5000), readers = trial.times(3, 3, 16);
    withMaps(trial, [&](WeakCreatorPtr const& entry, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        setOther(*object, false, pool);
        ColormapPtr const map = updated(*object, pool);
        {
            Crew const crew(readers, [&] { readBesideRewriting(*map, fewScalars()); });
            for (int i = 0; i < rounds || crew.rounds() < readers; ++i) {
                setOther(*object, i % 2 == 0, pool);
                rewriteBesideReading(*object, pool);
            }
        }
        setOther(*object, true, pool);
        forceUpdate(*object, pool);
        ObjectPtr const quietly = create(entry);
        PoolPtr const other = newPool();
        setOther(*quietly, true, other);
        Colours const expected = coloursOf(*updated(*quietly, other), fewScalars());
        std::string const change = difference(*mapOf(*object, pool), fewScalars(), expected);
        require(change.empty(), "beside readers, " + change);
    });
}

void pools(Trial& trial) {
    int const rounds = trial.times(50, 300, 3000);
    withMaps(trial, [&](WeakCreatorPtr const& entry, ObjectPtr const& shared) {
        Colours const expected = coloursOf(*updated(*shared, newPool()), fewScalars());
        onTwoThreads([&](int which) {
            ObjectPtr const own = create(entry);
            for (int i = 0; i < rounds; ++i) {
                setOther(*own, which == 1, nullptr);
                updated(*own, newPool());
                std::string const change =
                    difference(*updated(*shared, newPool()), fewScalars(), expected);
                require(change.empty(), change);
            }
        });
    });
}

void creates(Trial& trial) {
    int const rounds = trial.times(100, 500, 5000);
    withMaps(trial, [&](WeakCreatorPtr const& entry, ObjectPtr const&) {
        onTwoThreads([&](int) {
            for (int i = 0; i < rounds; ++i)
                updated(*create(entry), newPool());
        });
        require(entry->instances().size() == 1, "objects that two threads made live on");
    });
}

/// The last holder of a map is a consumer on a thread of its own.
void lastHolder(Trial& trial) {
    int const rounds = trial.times(20, 100, 1000);
    withMaps(trial, [&](WeakCreatorPtr const& entry, ObjectPtr const&) {
        for (int i = 0; i < rounds; ++i) {
            ObjectPtr object = create(entry);
            auto held = std::make_unique<ColormapPtr>(updated(*object, newPool()));
            std::atomic<bool> goes{false};
            std::thread consumer([&goes, map = std::move(held)]() mutable {
                while (!goes.load())
                    readBesideRewriting(**map, fewScalars());
                map.reset();
            });
            object = nullptr;
            goes = true;
            consumer.join();
        }
    });
}

void startsNone(Trial& trial) {
    std::size_t const before = threadCount();
    withMaps(trial, [&](WeakCreatorPtr const&, ObjectPtr const& object) {
        coloursOf(*updated(*object, newPool()), fewScalars());
        require(threadCount() <= before, "an update starts a thread");
    });
}

}  // namespace

std::vector<Test> threadTests() {
    return {
        {"threads/starts-none", "An object starts no thread.", {"cycle/publishes"}, startsNone},
        {"threads/readers",
         "Any number of consumers look a map up while its object is updated.",
         {"map/same-twice"},
         readers,
         240},
        {"threads/pools",
         "An object that is asked in two pools at once, beside objects of its kind, gives each "
         "pool its own map.",
         {"cycle/pools"},
         pools,
         240},
        {"threads/creates",
         "Objects may be made and deleted on two threads at once.",
         {"cycle/objects-go"},
         creates,
         240},
        {"threads/last-holder",
         "The last one to hold a map may be a consumer on another thread, when the object has "
         "gone.",
         {"cycle/map-outlives-object"},
         lastHolder,
         240},
    };
}

}  // namespace workbench::validate
