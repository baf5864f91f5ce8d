/// Objects, values and listeners that go on one thread while another one uses
/// them: for the thread and the address sanitizer.
#include <atomic>
#include <functional>
#include <thread>

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

constexpr int Rounds = 2000;

/// Two threads that do each its part of a round at the same time. `prepare` and
/// `check` run before and behind each round, on the first thread alone.
struct Together {
    std::function<void()> prepare, first, second;
    std::function<void()> check = [] {};

    void run() const {
        Rendezvous meet(2);
        std::thread other([&] {
            for (int round = 0; round < Rounds; ++round) {
                meet.arriveAndWait();
                second();
                meet.arriveAndWait();
            }
        });
        for (int round = 0; round < Rounds; ++round) {
            prepare();
            meet.arriveAndWait();
            first();
            meet.arriveAndWait();
            check();
        }
        other.join();
    }
};

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
    explicit Whole(std::atomic<int>& deaths) : deaths_(deaths) {}
    ~Whole() override {
        number = 0;
        ++deaths_;
    }
    int number = 42;

private:
    std::atomic<int>& deaths_;
};

TEST(WeakPointers, ArePromotedToAWholeObjectOrNoneWhileTheLastStrongOneGoes) {
    SilentSpeaker const silent;
    std::atomic<int> deaths{0}, broken{0}, promoted{0};
    StrongRoot last;
    WeakRoot mine;
    Together{.prepare =
                 [&] {
                     last = new Whole(deaths);
                     mine = WeakRoot(last);
                 },
             .first = [&] { last = nullptr; },
             .second =
                 [&] {
                     Nucleo::StrongPtr<Whole, Root> const held(mine);
                     if (!held)
                         return;
                     ++promoted;
                     if (held->number != 42)
                         ++broken;
                 },
             .check = [&] { EXPECT_EQ(mine.controlBlock()->strongNow(), Block::Dead); }}
        .run();
    EXPECT_EQ(deaths, Rounds) << "each once";
    EXPECT_EQ(broken, 0);
}

// --- Pools and parameters

TEST(PoolsAndParameters, MayGoAtTheSameTime) {
    SilentSpeaker const silent;
    registerValueTypes<double>();
    PoolPtr pool;
    ParameterPtr parameter;
    Together{.prepare =
                 [&] {
                     pool = makePool();
                     StrongPtr<VValue<double>, VValueBase> const value = new VValue<double>(1.0);
                     parameter = new VValueParameter<double>(value, "width");
                     parameter->poolVariable(pool);
                 },
             .first = [&] { pool = nullptr; },
             .second = [&] { parameter = nullptr; }}
        .run();
    EXPECT_FALSE(pool);
    EXPECT_FALSE(parameter);
}

class CountingNotifier : public ValueNotifier {
public:
    explicit CountingNotifier(std::atomic<int>& calls) : calls_(calls) {}
    void valueChanged(ValuePtr const&, PoolPtr const&, std::string const&) override { ++calls_; }

private:
    std::atomic<int>& calls_;
};

TEST(Notifiers, MayGoWhileTheirParameterTells) {
    SilentSpeaker const silent;
    registerValueTypes<double>();
    StrongPtr<VValue<double>, VValueBase> const value = new VValue<double>(1.0);
    ParameterPtr const parameter = new VValueParameter<double>(value, "width");
    std::atomic<int> calls{0};
    StrongPtr<ValueNotifier, ValueNotifier> notifier;
    Together{
        .prepare =
            [&] {
                notifier = new CountingNotifier(calls);
                parameter->addNotifier(notifier);
            },
        .first = [&] { notifier = nullptr; },
        .second =
            [&] { parameter->notifyValueChange(value, nullptr, "", nullptr, nullptr, nullptr); }}
        .run();
    EXPECT_LE(calls, Rounds) << "each was told once at most";
}

TEST(Listeners, ComeAndGoWhileThereIsNews) {
    class Counting : public VActionNotifier {
    public:
        void warned(std::string const&) override { ++heard; }
        std::atomic<int> heard{0};
    };
    Counting throughout;
    Together{.prepare = [] {},
             .first =
                 [] {
                     Counting const first, second;
                     static_cast<void>(first.heard.load());
                 },
             .second = [] { VActionNotifier::Warning("news"); }}
        .run();
    EXPECT_EQ(throughout.heard, Rounds);
}

// --- Objects

TEST(Providers, MayGoWhileTheirConsumerIsAsked) {
    SilentSpeaker const silent;
    NodePtr const consumer = new Node("consumer");
    consumer->enableRequestProcessing();
    PoolPtr const pool = makePool();
    NodePtr provider;
    int wrong = 0;
    Together{.prepare =
                 [&] {
                     provider = new Node("provider");
                     provider->enableRequestProcessing();
                     EXPECT_TRUE(consumer->connectSlots(consumer->slot("in"), *provider,
                                                        provider->slot("out")));
                 },
             .first = [&] { provider = nullptr; },
             .second =
                 [&] {
                     VRequest request(pool);
                     consumer->request(request, 0, nullptr, nullptr);
                 },
             .check =
                 [&] {
                     VRequest request(pool);
                     consumer->request(request, 0, nullptr, nullptr);
                     if (consumer->result(pool) != 2)
                         ++wrong;
                 }}
        .run();
    EXPECT_EQ(wrong, 0) << "without a provider its own value stands";
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
