/// Requests: what they run, what they find changed, and the connections they go along.
#include "host/object/VRequest.hpp"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "host/object/VObject.hpp"
#include "tests/host/object/Node.hpp"
#include "tests/support/objects.hpp"
#include "tests/support/sanitizers.hpp"

namespace tests {
namespace {

using namespace Orlo;
using Nucleo::Ageable;

class Requests : public testing::Test {
protected:
    Requests() {
        for (NodePtr const& node : {first_, second_, third_})
            node->enableRequestProcessing();
    }
    bool ask(Node& node, PoolPtr const& pool) {
        VRequest request(pool);
        return node.request(request, 0.5, nullptr, nullptr);
    }
    static bool connect(Node& consumer, Node& provider) {
        return consumer.connectSlots(consumer.slot("in"), provider, provider.slot("out"));
    }

    NodePtr first_ = new Node("first"), second_ = new Node("second"), third_ = new Node("third");
    PoolPtr pool_ = makePool();
};

TEST_F(Requests, AreAnsweredOnlyOnceEnabled) {
    NodePtr const node = new Node;
    EXPECT_FALSE(ask(*node, pool_));
    EXPECT_EQ(node->updates, 0);
    node->enableRequestProcessing();
    EXPECT_TRUE(ask(*node, pool_));
    EXPECT_EQ(node->updates, 1);
    EXPECT_EQ(node->lastPrecision, 0.5);
}

TEST_F(Requests, UpdateOnceUntilSomethingChanges) {
    EXPECT_TRUE(ask(*first_, pool_));
    EXPECT_TRUE(ask(*first_, pool_));
    EXPECT_EQ(first_->updates, 1);
    set(*first_, "in", "5");
    EXPECT_TRUE(ask(*first_, pool_));
    EXPECT_EQ(first_->updates, 2);
    EXPECT_EQ(first_->result(pool_), 10);
}

TEST_F(Requests, UpdateInEachPool) {
    PoolPtr const other = makePool();
    set(*first_, "in", "3", other);
    ask(*first_, pool_);
    ask(*first_, other);
    EXPECT_EQ(first_->updates, 2);
    EXPECT_EQ(first_->result(pool_), 2);
    EXPECT_EQ(first_->result(other), 6);
}

TEST_F(Requests, PullTheProvidersFirst) {
    ASSERT_TRUE(connect(*second_, *first_));
    ASSERT_TRUE(connect(*third_, *second_));
    std::string order;
    first_->atUpdate = [&] { order += "1"; };
    second_->atUpdate = [&] { order += "2"; };
    third_->atUpdate = [&] { order += "3"; };
    ask(*third_, pool_);
    EXPECT_EQ(order, "123");
    EXPECT_EQ(third_->result(pool_), 8);
    set(*first_, "in", "2");
    ask(*third_, pool_);
    EXPECT_EQ(order, "123123");
    EXPECT_EQ(third_->result(pool_), 16);
}

TEST_F(Requests, PassAnObjectOnceHoweverManyConsumersItHas) {
    connect(*second_, *first_);
    connect(*third_, *first_);
    VRequest request(pool_);
    second_->request(request, 0, nullptr, nullptr);
    third_->request(request, 0, nullptr, nullptr);
    EXPECT_EQ(first_->updates, 1);
    EXPECT_TRUE(first_->hasRequest(request));
    EXPECT_FALSE(first_->hasRequest(VRequest(pool_)));
}

TEST_F(Requests, EndInARing) {
    connect(*second_, *first_);
    EXPECT_TRUE(connect(*first_, *second_));
    EXPECT_TRUE(ask(*second_, pool_));
    first_->slot("in")->disconnect();
}

TEST_F(Requests, RunAlongChainsLongerThanAnyStackIsDeep) {
    constexpr std::size_t length = LongChain;
    std::vector<NodePtr> chain;
    chain.reserve(length);
    for (std::size_t i = 0; i < length; ++i) {
        chain.emplace_back(new Node);
        chain.back()->enableRequestProcessing();
        if (i > 0) {
            ASSERT_TRUE(connect(*chain[i], *chain[i - 1]));
        }
    }
    EXPECT_TRUE(ask(*chain.back(), pool_));
    EXPECT_TRUE(ask(*chain.back(), pool_));
    for (NodePtr const& node : chain)
        ASSERT_EQ(node->updates, 1);
    for (std::size_t i = 0; i < length / 2; ++i)
        chain[i] = nullptr;  // providers first,
    while (!chain.empty())
        chain.pop_back();  // and consumers first
}

/// A node that does something of its own with each request.
class Asked : public Node {
public:
    bool request(VRequest& request, double precision,
                 WeakPtr<VManagedObjectBase, VManagedObjectBase> const& asker,
                 WeakPtr<VManagedObjectBase, VManagedObjectBase> const& consumer) override {
        ++requests;
        lastAsker = asker;
        lastConsumer = consumer;
        return Node::request(request, precision, asker, consumer);
    }
    int requests = 0;
    WeakPtr<VManagedObjectBase, VManagedObjectBase> lastAsker, lastConsumer;
};

TEST_F(Requests, ReachAProviderThroughItsOwnOperation) {
    StrongPtr<Asked, VManagedObjectBase> const provider = new Asked;
    provider->enableRequestProcessing();
    connect(*provider, *first_);
    connect(*second_, *provider);
    connect(*third_, *second_);
    VRequest request(pool_);
    EXPECT_TRUE(third_->request(request, 0.5, nullptr, third_));
    EXPECT_EQ(provider->requests, 1);
    EXPECT_TRUE(provider->lastAsker == second_);
    EXPECT_TRUE(provider->lastConsumer == third_);
    EXPECT_EQ(provider->updates, 1);
    EXPECT_EQ(provider->lastPrecision, 0.5);
    EXPECT_EQ(third_->result(pool_), 16);
}

TEST_F(Requests, UpdateEachMemberOfARingOnceAndTheProvidersBehindItToo) {
    connect(*second_, *first_);
    connect(*first_, *third_);
    connect(*third_, *second_);
    std::string order;
    first_->atUpdate = [&] { order += "1"; };
    second_->atUpdate = [&] { order += "2"; };
    third_->atUpdate = [&] { order += "3"; };
    EXPECT_TRUE(ask(*second_, pool_));
    EXPECT_EQ(order, "312");
    first_->slot("in")->disconnect();
}

TEST_F(Requests, PassAProviderByThatAnswersNone) {
    NodePtr const silent = new Node;
    connect(*second_, *silent);
    EXPECT_TRUE(ask(*second_, pool_));
    EXPECT_EQ(silent->updates, 0);
    EXPECT_EQ(second_->updates, 1);
}

TEST_F(Requests, PassIgnoredInputsBy) {
    connect(*second_, *first_);
    second_->ignores = true;
    ask(*second_, pool_);
    EXPECT_EQ(first_->updates, 0);
    EXPECT_EQ(second_->updates, 1);
}

TEST_F(Requests, GiveTheResultOfTheUpdateAndAskAgainAfterAFailure) {
    first_->succeeds = false;
    EXPECT_FALSE(ask(*first_, pool_));
    EXPECT_FALSE(ask(*first_, pool_));
    EXPECT_EQ(first_->updates, 2);
    first_->succeeds = true;
    EXPECT_TRUE(ask(*first_, pool_));
    EXPECT_TRUE(ask(*first_, pool_));
    EXPECT_EQ(first_->updates, 3);
}

TEST_F(Requests, FromManyThreadsRunOneUpdateAtATime) {
    std::atomic<int> inside{0};
    std::atomic<bool> overlapped{false};
    first_->atUpdate = [&] {
        overlapped = overlapped || ++inside != 1;
        std::this_thread::yield();
        --inside;
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int k = 0; k < 50; ++k)
                ask(*first_, makePool());
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_FALSE(overlapped);
    EXPECT_EQ(first_->updates, 200);
}

// --- Changes

/// A value that counts how often its age is asked for.
class Watched : public VValue<double> {
public:
    using VValue<double>::VValue;
    using VValue<double>::ageable;
    ValuePtr copy() const override { return new Watched(*this); }
    Ageable const* ageable() const override {
        ++asked;
        return VValue<double>::ageable();
    }
    static inline int asked = 0;
};

TEST_F(Requests, AskForTheAgeOfEachInputOnce) {
    StrongPtr<VValue<double>, VValueBase> const value = new Watched(1.0);
    ParameterPtr const parameter = new VValueParameter<double>(value, "watched");
    VSlotGlobals::addParameter(first_.get(), "watched", 0, parameter, true);
    ask(*first_, pool_);
    for (bool const changed : {false, true}) {
        if (changed)
            set(*first_, "in", "5");
        Watched::asked = 0;
        ask(*first_, pool_);
        EXPECT_EQ(Watched::asked, 1) << (changed ? "with" : "without") << " a change";
    }
    EXPECT_EQ(first_->updates, 2);
}

TEST_F(Requests, AskWhetherAnUpdateIsDueWhenNoInputHasChanged) {
    class Wanting : public Node {
    public:
        bool must_update(VRequest const&, double) const override { return wants; }
        bool wants = false;
    };
    StrongPtr<Wanting, VManagedObjectBase> const node = new Wanting;
    node->enableRequestProcessing();
    ask(*node, pool_);
    EXPECT_EQ(node->updates, 1) << "the first time, though it does not want to";
    ask(*node, pool_);
    EXPECT_EQ(node->updates, 1);
    node->wants = true;
    ask(*node, pool_);
    EXPECT_EQ(node->updates, 2);
    node->wants = false;
    set(*node, "in", "5");
    ask(*node, pool_);
    EXPECT_EQ(node->updates, 3) << "an input has changed, whatever it wants";
}

TEST_F(Requests, FindAnUpdateDueWhileAnInputHasChangedSinceTheLastOne) {
    VRequest const request(pool_);
    EXPECT_TRUE(first_->must_update(request, 0)) << "there was none";
    ask(*first_, pool_);
    EXPECT_FALSE(first_->must_update(request, 0));
    set(*first_, "in", "5");
    EXPECT_TRUE(first_->must_update(request, 0));
    ask(*first_, pool_);
    EXPECT_FALSE(first_->must_update(request, 0));
    EXPECT_TRUE(first_->must_update(VRequest(makePool()), 0)) << "none in that pool";
}

TEST_F(Requests, NoteAsFinishedOnlyTheUpdatesThatTheyRan) {
    forceUpdate(*first_, pool_);
    EXPECT_TRUE(first_->hasChanged(first_->slot("in"), pool_)) << "a bare call is not noted";
    VRequest request(pool_);
    first_->unsychronized_update(request, 0);
    EXPECT_FALSE(first_->hasChanged(first_->slot("in"), pool_));
}

TEST_F(Requests, NoteWhatHasChangedSinceTheLastFinishedUpdateInThePool) {
    SlotPtr const in = first_->slot("in");
    EXPECT_TRUE(first_->hasChanged(in, pool_)) << "there was no update";
    ask(*first_, pool_);
    EXPECT_FALSE(first_->hasChanged(in, pool_));
    EXPECT_TRUE(first_->hasChanged(in, makePool())) << "none in that pool";
    set(*first_, "in", "1");
    EXPECT_TRUE(first_->hasChanged(in, pool_)) << "set again is changed";
    ask(*first_, pool_);
    EXPECT_FALSE(first_->hasChanged(in, pool_));
    set(*first_, "in", "4", makePool());
    EXPECT_FALSE(first_->hasChanged(in, pool_)) << "set in another pool";
}

TEST_F(Requests, SeeAChangeThatComesDuringTheUpdate) {
    first_->atUpdate = [this] {
        if (first_->updates == 1)
            set(*first_, "in", "9");
    };
    ask(*first_, pool_);
    EXPECT_TRUE(first_->hasChanged(first_->slot("in"), pool_));
}

TEST_F(Requests, AgeTheContainerByItsYoungestInput) {
    PoolPtr const other = makePool();
    set(*first_, "in", "4");
    EXPECT_EQ(first_->age(pool_), Ageable::now());
    Ageable::GlobalTime.fetch_add(5);
    EXPECT_EQ(first_->age(pool_), Ageable::now() - 5);
    set(*first_, "in", "5", other);
    EXPECT_EQ(first_->age(other), Ageable::now());
    EXPECT_LT(first_->age(pool_), Ageable::now());
    EXPECT_EQ(first_->slot("in")->age(other), first_->age(other));
}

TEST_F(Requests, FindNewConnectionsChanged) {
    ask(*second_, pool_);
    connect(*second_, *first_);
    EXPECT_TRUE(second_->hasChanged(second_->slot("in"), pool_));
    ask(*second_, pool_);
    EXPECT_EQ(second_->result(pool_), 4);
    second_->slot("in")->disconnect();
    EXPECT_TRUE(second_->hasChanged(second_->slot("in"), pool_));
    ask(*second_, pool_);
    EXPECT_EQ(second_->result(pool_), 2) << "its own value stands again";
}

// --- Connections

TEST_F(Requests, ReadTheProvidersParameterThroughAConnectedSlot) {
    connect(*second_, *first_);
    SlotPtr const in = second_->slot("in");
    EXPECT_EQ(in->parameter().get(), first_->slot("out")->parameter().get());
    EXPECT_NE(in->parameter().get(), in->ownParameter().get());
    EXPECT_TRUE(in->provider());
}

TEST_F(Requests, RefuseConnectionsOfOtherTypesAndOfOutputs) {
    registerValueTypes<int>();
    TypedSlot<int> const count(first_.get(), "count", 1, 0);
    EXPECT_FALSE(first_->connectSlots(first_->slot("count"), *second_, second_->slot("out")));
    EXPECT_EQ(first_->slot("count")->parameter().get(),
              first_->slot("count")->ownParameter().get());
    EXPECT_FALSE(first_->connectSlots(first_->slot("out"), *second_, second_->slot("out")));
    EXPECT_TRUE(
        first_->allowParameterReplacement(first_->slot("in"), second_->slot("out")->parameter()));
}

TEST_F(Requests, RefuseAConnectionThatLacksASlot) {
    SlotPtr const in = second_->slot("in"), out = first_->slot("out"), none;
    EXPECT_FALSE(second_->connectSlots(none, *first_, out));
    EXPECT_FALSE(second_->connectSlots(in, *first_, none));
    EXPECT_FALSE(second_->connectSlots(second_->slot("no such"), *first_, first_->slot("slot")));
    EXPECT_FALSE(second_->allowParameterReplacement(none, out->parameter()));
    EXPECT_FALSE(second_->allowParameterReplacement(in, nullptr));
    EXPECT_FALSE(in->provider());
}

TEST_F(Requests, RefuseAConnectionOfParametersWithoutADefault) {
    ParameterPtr const bare = new VValueParameter<double>(nullptr, "bare");
    SlotPtr const slot = VSlotGlobals::addParameter(nullptr, "bare", 0, bare, true);
    EXPECT_FALSE(first_->allowParameterReplacement(slot, second_->slot("out")->parameter()));
    EXPECT_FALSE(first_->allowParameterReplacement(first_->slot("in"), bare));
}

TEST_F(Requests, VisitTheOutputsAlone) {
    std::vector<std::string> names;
    first_->iterateOutputs([&](SlotPtr const& slot) { names.push_back(slot->name()); });
    EXPECT_EQ(names, std::vector<std::string>{"out"});
}

TEST_F(Requests, LetAConnectionGiveWayToAnother) {
    connect(*third_, *first_);
    connect(*third_, *second_);
    SlotPtr const in = third_->slot("in");
    first_ = nullptr;
    EXPECT_EQ(in->provider().get(), second_.get()) << "the former provider takes nothing with it";
    second_ = nullptr;
    EXPECT_EQ(in->parameter().get(), in->ownParameter().get());
}

TEST_F(Requests, KeepAConnectionThatAnotherObjectTakesBack) {
    connect(*third_, *first_);
    SlotPtr const in = third_->slot("in");
    in->disconnectFrom(*second_);
    EXPECT_EQ(in->provider().get(), first_.get());
    in->disconnectFrom(*first_);
    EXPECT_FALSE(in->isConnected());
}

TEST_F(Requests, ReadAParameterThatNoObjectProvides) {
    StrongPtr<VValue<double>, VValueBase> const value = new VValue<double>(4.0);
    first_->slot("in")->connect(new VValueParameter<double>(value, "loose"), nullptr);
    EXPECT_TRUE(ask(*first_, pool_));
    EXPECT_EQ(first_->result(pool_), 8);
}

TEST_F(Requests, AnswerTheSameRequestOnce) {
    VRequest request(pool_);
    EXPECT_TRUE(first_->request(request, 0.5, nullptr, nullptr));
    first_->in.slot()->ownParameter()->touch();
    EXPECT_TRUE(first_->request(request, 0.5, nullptr, nullptr));
    EXPECT_EQ(first_->updates, 1);
}

TEST_F(Requests, FindTheOwnParameterAgainWhenTheProviderIsGone) {
    connect(*second_, *first_);
    first_ = nullptr;
    SlotPtr const in = second_->slot("in");
    EXPECT_EQ(in->parameter().get(), in->ownParameter().get());
    EXPECT_FALSE(in->provider());
    EXPECT_TRUE(ask(*second_, pool_));
    EXPECT_EQ(second_->result(pool_), 2);
}

TEST_F(Requests, HaveNoHookThatDoesAnything) {
    first_->setup({});
    first_->adjustConnections();
    first_->CreatedFilteredConnection(first_->slot("in"));
    first_->InputCreation(nullptr, nullptr, nullptr);
    EXPECT_EQ(first_->updates, 0);
}

// --- Slots

TEST_F(Requests, KeepSlotsInTheirOrderAndReplaceThoseOfTheSameName) {
    NodePtr const node = new Node;
    TypedSlot<double> const again(node.get(), "in", 7.0, 0);
    ASSERT_EQ(node->slots().size(), 2u);
    EXPECT_EQ(node->slots()[0].get(), again.slot().get());
    EXPECT_EQ(node->slots()[1]->name(), "out");
    EXPECT_FALSE(node->slot("no such slot"));
    EXPECT_EQ(inputs(*node).size(), 1u);
}

TEST_F(Requests, FindTheAgeOfTheOwnValueWhereAParameterIsNotMarkedForPools) {
    SlotPtr const in = first_->slot("in");
    ParameterPtr const parameter = in->ownParameter();
    ValuePtr const local = parameter->getLocalValue(pool_, "", true);
    local->ageable()->touch();
    EXPECT_EQ(in->age(pool_), local->ageable()->age());
    parameter->flags = 0;
    EXPECT_EQ(in->age(pool_), parameter->ownValue()->ageable()->age());
}

TEST_F(Requests, FindNoAgeWhereNoValueStands) {
    ParameterPtr const bare = new VValueParameter<double>(nullptr, "bare");
    SlotPtr const slot = VSlotGlobals::addParameter(nullptr, "bare", 0, bare, true);
    Ageable::Stamp const before = slot->age(pool_);
    bare->touch();
    EXPECT_EQ(slot->age(pool_), before) << "there is nothing to stamp";
    EXPECT_LT(before, Ageable::now()) << "but the time goes on";
}

TEST_F(Requests, AcceptAnObjectOnceForEachInput) {
    AcceptList const ways = VObject::accept(first_);
    ASSERT_EQ(ways.size(), 1u);
    EXPECT_EQ(ways.front()->slotName, "in");
}

}  // namespace
}  // namespace tests
