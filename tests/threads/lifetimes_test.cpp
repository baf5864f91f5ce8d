/// Objects, values and listeners that go on one thread while another one uses
/// them: for the thread and the address sanitizer.
#include <atomic>
#include <cstddef>
#include <functional>
#include <thread>
#include <vector>

#include "host/creators/VActionNotifier.hpp"
#include "tests/host/object/Node.hpp"
#include "tests/host/pointers/family.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/Rendezvous.hpp"
#include "tests/threads/Alternation.hpp"
#include "tests/threads/Readers.hpp"

namespace tests {
namespace {

using namespace Orlo;

constexpr std::size_t Rounds = 2000;

/// Two threads that do each its part of all rounds, side by side. They meet every
/// few rounds only: on a busy machine a meeting takes long.
void sideBySide(std::function<void(std::size_t)> const& first,
                std::function<void(std::size_t)> const& second) {
    Rendezvous meet(2);
    auto const run = [&](std::function<void(std::size_t)> const& part) {
        for (std::size_t round = 0; round < Rounds; ++round) {
            if (round % 50 == 0)
                meet.arriveAndWait();
            part(round);
        }
    };
    std::thread other(run, second);
    run(first);
    other.join();
}

/// Reports of races are right here, and not of interest.
class SilentSpeaker : public Nucleo::SpeakPtr {
public:
    SilentSpeaker() : former_(setSpeaker(this)) {}
    SilentSpeaker(SilentSpeaker const&) = delete;
    SilentSpeaker& operator=(SilentSpeaker const&) = delete;
    ~SilentSpeaker() override { setSpeaker(former_); }

    void DynPtrInvalid(void const*, void const*, int, int,
                       std::type_info const&) noexcept override {}
    void DestructionCancelled(int, int, std::type_info const&) noexcept override {}
    void WarningUnctionChange(int, int, std::type_info const&) noexcept override {}

private:
    SpeakPtr* former_;
};

// --- Pointers

/// An object that knows whether it is whole.
class Whole : public Leaf {
public:
    explicit Whole(std::atomic<std::size_t>& deaths) : deaths_(deaths) {}
    ~Whole() override {
        number = 0;
        ++deaths_;
    }
    int number = 42;

private:
    std::atomic<std::size_t>& deaths_;
};

TEST(WeakPointers, ArePromotedToAWholeObjectOrNoneWhileTheLastStrongOneGoes) {
    SilentSpeaker const silent;
    std::atomic<std::size_t> deaths{0}, broken{0};
    std::vector<StrongRoot> last;
    std::vector<WeakRoot> weak;
    for (std::size_t i = 0; i < Rounds; ++i) {
        last.emplace_back(new Whole(deaths));
        weak.emplace_back(last.back());
    }
    sideBySide([&](std::size_t i) { last[i] = nullptr; },
               [&](std::size_t i) {
                   Nucleo::StrongPtr<Whole, Root> const held(weak[i]);
                   if (held && held->number != 42)
                       ++broken;
               });
    EXPECT_EQ(deaths, Rounds) << "each once";
    EXPECT_EQ(broken, 0);
    for (WeakRoot const& each : weak)
        EXPECT_EQ(each.controlBlock()->strongNow(), Block::Dead);
}

// --- Pools and parameters

ParameterPtr doubleParameter() {
    registerValueTypes<double>();
    StrongPtr<VValue<double>, VValueBase> const value = new VValue<double>(1.0);
    return new VValueParameter<double>(value, "width");
}

TEST(PoolsAndParameters, MayGoAtTheSameTime) {
    SilentSpeaker const silent;
    std::vector<PoolPtr> pools;
    std::vector<ParameterPtr> parameters;
    for (std::size_t i = 0; i < Rounds; ++i) {
        pools.push_back(makePool());
        parameters.push_back(doubleParameter());
        parameters.back()->poolVariable(pools.back());
    }
    WeakPtr<ValuePool, ValuePool> const lastPool(pools.back());
    sideBySide([&](std::size_t i) { pools[i] = nullptr; },
               [&](std::size_t i) { parameters[i] = nullptr; });
    EXPECT_FALSE(lastPool.alive());
}

class CountingNotifier : public ValueNotifier {
public:
    explicit CountingNotifier(std::atomic<std::size_t>& calls) : calls_(calls) {}
    void valueChanged(ValuePtr const&, PoolPtr const&, std::string const&) override { ++calls_; }

private:
    std::atomic<std::size_t>& calls_;
};

TEST(Notifiers, MayGoWhileTheirParameterTells) {
    SilentSpeaker const silent;
    std::atomic<std::size_t> calls{0};
    std::vector<ParameterPtr> parameters;
    std::vector<StrongPtr<ValueNotifier, ValueNotifier>> notifiers;
    for (std::size_t i = 0; i < Rounds; ++i) {
        parameters.push_back(doubleParameter());
        notifiers.emplace_back(new CountingNotifier(calls));
        parameters.back()->addNotifier(notifiers.back());
    }
    sideBySide([&](std::size_t i) { notifiers[i] = nullptr; },
               [&](std::size_t i) {
                   parameters[i]->notifyValueChange(nullptr, nullptr, "", nullptr, nullptr,
                                                    nullptr);
               });
    EXPECT_LE(calls, Rounds) << "each was told once at most";
}

TEST(Listeners, ComeAndGoWhileThereIsNews) {
    class Counting : public VActionNotifier {
    public:
        void warned(std::string const&) override { ++heard; }
        std::atomic<std::size_t> heard{0};
    };
    Counting throughout;
    // The second kind of listener hears nothing of its own, so that its end races
    // with no call of its own operations.
    sideBySide([](std::size_t) { VActionNotifier const passing; },
               [](std::size_t) { VActionNotifier::Warning("news"); });
    EXPECT_EQ(throughout.heard, Rounds);
}

// --- Objects

TEST(Providers, MayGoWhileTheirConsumerIsAsked) {
    SilentSpeaker const silent;
    PoolPtr const pool = makePool();
    std::vector<NodePtr> consumers, providers;
    for (std::size_t i = 0; i < Rounds; ++i) {
        for (std::vector<NodePtr>* const nodes : {&consumers, &providers}) {
            nodes->emplace_back(new Node);
            nodes->back()->enableRequestProcessing();
        }
        ASSERT_TRUE(consumers[i]->connectSlots(consumers[i]->slot("in"), *providers[i],
                                               providers[i]->slot("out")));
    }
    auto const ask = [&](Node& consumer) {
        VRequest request(pool);
        return consumer.request(request, 0, nullptr, nullptr);
    };
    sideBySide([&](std::size_t i) { providers[i] = nullptr; },
               [&](std::size_t i) { ask(*consumers[i]); });
    for (NodePtr const& consumer : consumers) {
        EXPECT_TRUE(ask(*consumer));
        EXPECT_EQ(consumer->result(pool), 2) << "without a provider its own value stands";
    }
}

class Ages : public PluginTest {};

TEST_F(Ages, OfAnOutputAreAskedForWhileItsMapIsReplaced) {
    ObjectPtr const object = create("Colormaps/Hypsometric");
    Alternation const alternation(*object);
    PoolPtr const pool = makePool();
    update(*object, pool);
    SlotPtr const output = object->slot("colormap");
    std::atomic<int> backwards{0};
    {
        Readers const readers([&] {
            Nucleo::Ageable::Stamp const before = output->age(pool);
            if (output->age(pool) < before)
                ++backwards;
        });
        whileReading(readers, [&](unsigned round) {
            alternation.set(*object, round + 1);
            update(*object, pool);
        });
    }
    EXPECT_EQ(backwards, 0) << "each map is younger than the one before";
}

}  // namespace
}  // namespace tests
