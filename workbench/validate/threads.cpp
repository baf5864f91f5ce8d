/// Threads: consumers beside updates, pools beside pools.
#include <array>
#include <atomic>
#include <mutex>
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

/// Does something on whatever thread it is called, and gives what went wrong; else empty.
std::string problemOf(std::function<void()> const& work) {
    try {
        inOwnWords("", work);
    } catch (Verdict const& verdict) {
        return verdict.seen;
    }
    return {};
}

/// Threads that do the same until they are told to end, or one of them fails.
class Crew {
public:
    Crew(int count, std::function<void()> const& work) {
        for (int i = 0; i < count; ++i)
            threads_.emplace_back([this, work] {
                while (!ends_.load(std::memory_order_relaxed))
                    goRound(work);
            });
    }
    Crew(Crew const&) = delete;
    Crew& operator=(Crew const&) = delete;
    ~Crew() { join(); }

    /// Whether they have gone so many rounds together, or have ended.
    bool hasGone(int rounds) const { return ends_ || rounds_ >= rounds; }

    /// Ends them, and gives what went wrong; else empty.
    std::string join() {
        ends_ = true;
        for (std::thread& thread : threads_)
            if (thread.joinable())
                thread.join();
        return problem_;
    }

private:
    void goRound(std::function<void()> const& work) {
        if (std::string const problem = problemOf(work); !problem.empty()) {
            std::scoped_lock const lock(mutex_);
            problem_ = problem;
            ends_ = true;
        }
        rounds_.fetch_add(1, std::memory_order_relaxed);
    }

    std::atomic<bool> ends_{false};
    std::atomic<int> rounds_{0};
    std::mutex mutex_;
    std::string problem_;
    std::vector<std::thread> threads_;
};

/// Does the same on two threads, to its end. They begin together, so that neither is
/// done before the other one has begun; from then on each goes at its own pace.
void onTwoThreads(std::function<void(int which)> const& work) {
    std::atomic<int> missing{2};  // no std::barrier, some of which miss that all are there
    std::array<std::string, 2> problems;
    auto const run = [&](int which) {
        for (--missing; missing > 0;)
            std::this_thread::yield();
        problems.at(static_cast<std::size_t>(which)) = problemOf([&] { work(which); });
    };
    std::thread other(run, 1);
    run(0);
    other.join();
    for (std::string const& problem : problems)
        require(problem.empty(), problem);
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
        Crew crew(readers, [&] { readBesideRewriting(*map, fewScalars()); });
        for (int i = 0; i < rounds || !crew.hasGone(readers); ++i) {
            setOther(*object, i % 2 == 0, pool);
            rewriteBesideReading(*object, pool);
        }
        // What the last update beside them has left is not mended by a quiet one.
        setOther(*object, true, pool);
        rewriteBesideReading(*object, pool);
        std::string const problem = crew.join();
        require(problem.empty(), "beside an update, a lookup: " + problem);
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
        std::array const own{create(entry), create(entry)};
        onTwoThreads([&](int which) {
            VObject& object = *own.at(static_cast<std::size_t>(which));
            for (int i = 0; i < rounds; ++i) {
                setOther(object, which == 1, nullptr);
                // Now more often and now less, since two who wait for each other at the
                // shared one would keep step for ever.
                for (int k = 0; k <= i * (which + 1) % 3; ++k)
                    updated(object, newPool());
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

/// The last holder of a map is a consumer on a thread of its own, for which its colours
/// are those that they were for the thread of the object.
void lastHolder(Trial& trial) {
    int const rounds = trial.times(20, 100, 1000);
    withMaps(trial, [&](WeakCreatorPtr const& entry, ObjectPtr const&) {
        for (int i = 0; i < rounds; ++i) {
            ObjectPtr object = create(entry);
            auto held = std::make_unique<ColormapPtr>(updated(*object, newPool()));
            Colours const expected = coloursOf(**held, fewScalars());
            std::atomic<bool> goes{false};
            std::string problem;
            std::thread consumer([&, map = std::move(held)]() mutable {
                problem = problemOf([&] {
                    std::string change;
                    do
                        change = difference(**map, fewScalars(), expected);
                    while (change.empty() && !goes);
                    require(change.empty(), "on another thread, " + change);
                });
                map.reset();
            });
            object = nullptr;
            goes = true;
            consumer.join();
            require(problem.empty(), problem);
        }
    });
}

void startsNone(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        std::size_t const before = threadCount();  // those of the load have a test of their own
        ObjectPtr const object = create(entry);
        if (mapOutputsOf(*object).empty())
            return;
        coloursOf(*updated(*object, newPool()), fewScalars());
        require(threadCount() <= before, "an object starts a thread");
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
