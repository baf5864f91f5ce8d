/// Counted pointers: counts, life and death, and every diagnostic path.
#include "host/pointers/StrongPtr.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <thread>
#include <vector>

#include "host/pointers/Auto.hpp"
#include "tests/host/pointers/family.hpp"
#include "tests/support/RecordingSpeaker.hpp"
#include "tests/support/Rendezvous.hpp"
#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using Nucleo::PointerID;

/// Both counts of a block.
struct Counts {
    int strong, weak;
    bool operator==(Counts const&) const = default;
    friend std::ostream& operator<<(std::ostream& out, Counts const& counts) {
        return out << "strong " << counts.strong << ", weak " << counts.weak;
    }
};

template <class Pointer>
Counts countsOf(Pointer const& pointer) {
    return {pointer.controlBlock()->strongNow(), pointer.controlBlock()->weakNow()};
}

// --- Numbers

TEST(PointerNumber, IsTakenByEveryPointerConstructedEvenAnEmptyOne) {
    std::uint32_t const before = PointerID;
    StrongRoot const empty;
    WeakRoot const second;
    StrongRoot const object(new Root);
    StrongRoot const copy(object);
    EXPECT_EQ(empty.number(), before + 1);
    EXPECT_EQ(second.number(), before + 2);
    EXPECT_EQ(object.number(), before + 3);
    EXPECT_EQ(copy.number(), before + 4);
    EXPECT_EQ(PointerID, before + 4);
}

TEST(PointerNumber, WrapsAround) {
    std::uint32_t const before = PointerID;
    PointerID = 0xffffffffu;
    EXPECT_EQ(StrongRoot().number(), 0u);
    PointerID = before;
}

// --- Layout

TEST(PointerLayout, HasTheNumberThenTheBlockThenTheTypedPointer) {
    StrongLeaf const leaf(new Leaf);
    void const* words[3];
    static_assert(sizeof leaf == sizeof words);
    static_assert(sizeof(WeakLeaf) == sizeof words, "a strong pointer adds no field");
    std::memcpy(words, static_cast<void const*>(&leaf), sizeof words);
    EXPECT_EQ(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(words[0])),
              leaf.number());
    EXPECT_EQ(words[1], leaf.controlBlock());
    EXPECT_EQ(words[2], leaf.get());
}

TEST(ControlBlockLayout, HasStrongThenWeakThenTheObject) {
    static_assert(std::is_standard_layout_v<Block>);
    EXPECT_EQ(offsetof(Block, strong), 0u);
    EXPECT_EQ(offsetof(Block, weak), 4u);
    EXPECT_EQ(offsetof(Block, object), 8u);
    EXPECT_EQ(Block::Dead, -111);
    EXPECT_EQ(Block::DiedWhileCounted, -333);
}

TEST(CountedClass, HasFinalUnctionAsItsFirstOperation) {
    EXPECT_EQ(virtualSlot(&Nucleo::ReferenceBase<Root>::finalUnction), 1u);
}

// --- Counting

TEST(CountedObject, StartsWithNoStrongHolderAndItsOwnWeakReference) {
    Root const object;
    EXPECT_EQ(object.controlBlock()->strongNow(), 0);
    EXPECT_EQ(object.controlBlock()->weakNow(), 1);
    EXPECT_EQ(object.controlBlock()->objectNow(), &object);
}

TEST(CountedObject, CopiedIsAnotherObjectWithItsOwnCounts) {
    StrongRoot const first(new Root);
    Root const second(*first);
    EXPECT_NE(second.controlBlock(), first.controlBlock());
    EXPECT_EQ(second.controlBlock()->strongNow(), 0);
    EXPECT_EQ(countsOf(first), (Counts{1, 2}));
}

TEST(CountedObject, AssignedKeepsItsOwnCounts) {
    StrongRoot const first(new Root);
    StrongRoot const second(new Root);
    Block const* const own = second->controlBlock();
    *second = *first;
    EXPECT_EQ(second->controlBlock(), own);
    EXPECT_EQ(own->objectNow(), second.get());
    EXPECT_EQ(countsOf(first), (Counts{1, 2}));
    EXPECT_EQ(countsOf(second), (Counts{1, 2}));
}

TEST(StrongPointer, CountsStrongAndWeak) {
    StrongRoot const first(new Root);
    EXPECT_EQ(countsOf(first), (Counts{1, 2}));
    {
        StrongRoot const second(first);
        EXPECT_EQ(countsOf(first), (Counts{2, 3}));
    }
    EXPECT_EQ(countsOf(first), (Counts{1, 2}));
}

TEST(WeakPointer, CountsWeakOnly) {
    StrongRoot const strong(new Root);
    WeakRoot const weak(strong);
    EXPECT_EQ(countsOf(strong), (Counts{1, 3}));
    EXPECT_EQ(weak.get(), strong.get());
}

TEST(StrongPointer, AssignedLetsGoOfTheFormerObject) {
    int deaths = 0;
    StrongRoot pointer(new Root(&deaths));
    StrongRoot const next(new Root(&deaths));
    pointer = next;
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(countsOf(next), (Counts{2, 3}));
    pointer = nullptr;
    EXPECT_EQ(countsOf(next), (Counts{1, 2}));
}

TEST(StrongPointer, AssignedTheSameObjectKeepsIt) {
    int deaths = 0;
    StrongRoot pointer(new Root(&deaths));
    StrongRoot const same(pointer);
    pointer = same;
    EXPECT_EQ(countsOf(pointer), (Counts{2, 3}));
    EXPECT_EQ(deaths, 0);
}

/// A member of a list that each member before it holds.
class Link : public Root {
public:
    using Root::Root;
    StrongRoot next;
};

TEST(StrongPointer, AssignedHoldsTheNextObjectBeforeItLetsGoOfTheFormer) {
    int deaths = 0;
    auto* const first = new Link(&deaths);
    first->next = new Root(&deaths);
    WeakRoot const second(first->next);
    StrongRoot pointer(first);
    pointer = first->next;  // which goes with the first
    EXPECT_EQ(deaths, 1);
    ASSERT_TRUE(second.alive());
    EXPECT_EQ(pointer.get(), second.get());
}

TEST(WeakPointer, AssignedHoldsTheNextBlockBeforeItLetsGoOfTheFormer) {
    StrongRoot const object(new Root);
    WeakRoot pointer(object);
    WeakRoot const same(pointer);
    pointer = same;
    EXPECT_EQ(countsOf(object), (Counts{1, 4}));
}

TEST(StrongPointer, OnAllThreadsCountsExactly) {
    constexpr unsigned threadCount = 4;
    StrongRoot const object(new Root);
    Rendezvous together(threadCount);
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < threadCount; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 100; ++round) {
                together.arriveAndWait();
                for (int k = 0; k < 500; ++k) {
                    StrongRoot const copy(object);
                    WeakRoot const weak(copy);
                }
            }
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(countsOf(object), (Counts{1, 2}));
}

// --- Emptiness and casts

TEST(StrongPointer, EmptyIsNotAlive) {
    for (StrongRoot const& pointer : {StrongRoot(), StrongRoot(nullptr)}) {
        EXPECT_FALSE(pointer.alive());
        EXPECT_FALSE(pointer);
        EXPECT_EQ(pointer.get(), nullptr);
        EXPECT_EQ(pointer.controlBlock(), nullptr);
        EXPECT_TRUE(pointer == nullptr);
    }
}

TEST(StrongPointer, CastsToTheRootAndBack) {
    StrongLeaf const leaf(new Leaf);
    StrongRoot const root(leaf);
    StrongLeaf const again(root);
    EXPECT_EQ(root.get(), leaf.get());
    EXPECT_EQ(again.get(), leaf.get());
    EXPECT_TRUE(root == again);
    EXPECT_EQ(countsOf(leaf), (Counts{3, 4}));
}

TEST(StrongPointer, WhoseCastFailsHoldsTheObjectAndReadsAsNull) {
    int deaths = 0;
    StrongLeaf leaf(new Leaf(&deaths));
    {
        StrongOther const other(leaf);
        EXPECT_EQ(other.get(), nullptr);
        EXPECT_FALSE(other);
        EXPECT_EQ(countsOf(leaf), (Counts{2, 3}));
        leaf = nullptr;
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
}

// --- Death

TEST(StrongPointer, LastReleasedWithAWeakPointerAliveLeavesMinus111AndAnEmptyReader) {
    int deaths = 0;
    StrongRoot strong(new Root(&deaths));
    WeakRoot const weak(strong);
    strong = nullptr;
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(weak.controlBlock()->strongNow(), -111);
    EXPECT_EQ(weak.controlBlock()->weakNow(), 1) << "the block goes with the weak pointer";
    EXPECT_EQ(weak.controlBlock()->objectNow(), nullptr);
    EXPECT_FALSE(weak.alive());
    EXPECT_EQ(weak.get(), nullptr);
}

TEST(StrongPointer, FromAWeakPointerToADeadObjectHoldsNothing) {
    StrongRoot strong(new Root);
    WeakRoot const weak(strong);
    strong = nullptr;
    {
        StrongRoot const late(weak);
        StrongLeaf const lateLeaf(weak);
        EXPECT_FALSE(late.alive());
        EXPECT_EQ(lateLeaf.get(), nullptr);
        EXPECT_EQ(countsOf(weak), (Counts{-111, 3}));
    }
    EXPECT_EQ(countsOf(weak), (Counts{-111, 1}));
}

TEST(StrongPointer, FromAPointerOfAnotherClassIsCountedBeforeItLooksAtTheObject) {
    RecordingSpeaker speaker;
    StrongRoot const root(new Leaf);
    Block* const block = root.controlBlock();
    auto* const object = block->objectNow();
    speaker.atReport = [&](PointerReport const& report) {
        if (report.operation == "hold")
            block->object = nullptr;  // whoever looks now finds nothing
    };
    Nucleo::SpeakPtr::Tracing = true;
    StrongLeaf const leaf(root);
    Nucleo::SpeakPtr::Tracing = false;
    block->object = object;
    EXPECT_EQ(countsOf(root), (Counts{2, 3}));
    EXPECT_EQ(leaf.get(), nullptr) << "the cast came first";
}

TEST(WeakPointer, ToADyingObjectReadsAsEmpty) {
    auto* const object = new Root;
    WeakRoot const weak(object);
    bool aliveAtUnction = false, aliveAtDeath = true;
    object->atUnction = [&] { aliveAtUnction = weak.alive(); };
    object->atDeath = [&] { aliveAtDeath = weak.alive(); };
    { StrongRoot const strong(object); }
    EXPECT_TRUE(aliveAtUnction) << "the last chance to act while whole";
    EXPECT_FALSE(aliveAtDeath);
}

TEST(StrongPointer, OfAnObjectThatWasDeletedByHandReadsAsEmptyAndLetsGoInSilence) {
    RecordingSpeaker speaker;
    int deaths = 0;
    auto* const object = new Root(&deaths);
    StrongRoot holder(object);
    StrongRoot const second(holder);
    delete object;
    EXPECT_EQ(deaths, 1);
    EXPECT_FALSE(holder);
    EXPECT_EQ(countsOf(holder), (Counts{-111, 2}));
    EXPECT_EQ(holder.controlBlock()->objectNow(), nullptr) << "nobody may delete it again";
    holder = nullptr;
    EXPECT_EQ(countsOf(second), (Counts{-111, 1}));
    EXPECT_TRUE(speaker.reports.empty());
}

TEST(FinalUnction, IsCalledOnceWhenTheCountIsOne) {
    auto* const object = new Root;
    std::vector<int> counts;
    object->atUnction = [&] { counts.push_back(object->controlBlock()->strongNow()); };
    {
        StrongRoot const first(object);
        StrongRoot const second(first);
    }
    EXPECT_EQ(counts, std::vector<int>{1});
}

// --- Diagnostics

TEST(FinalUnction, ThatTakesANewStrongReferenceIsReportedAndTheObjectLives) {
    RecordingSpeaker speaker;
    int deaths = 0;
    StrongRoot rescued;
    auto* const object = new Root(&deaths);
    object->atUnction = [&] { rescued = StrongRoot(object); };
    { StrongRoot const last(object); }
    ASSERT_EQ(speaker.reports.size(), 1u);
    EXPECT_EQ(speaker.reports[0].what, "WarningUnctionChange");
    EXPECT_EQ(speaker.reports[0].strong, 2);
    EXPECT_EQ(speaker.reports[0].weak, 3);
    EXPECT_EQ(*speaker.reports[0].type, typeid(Root));
    EXPECT_EQ(deaths, 0);
    EXPECT_EQ(countsOf(rescued), (Counts{1, 2}));
    object->atUnction = nullptr;
    rescued = nullptr;
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(speaker.reports.size(), 1u) << "the second release is an ordinary one";
}

TEST(FinalUnction, ThatTakesTheLastReferenceAwayIsReportedAndNothingIsDeleted) {
    RecordingSpeaker speaker;
    int deaths = 0;
    auto* const object = new Root(&deaths);
    auto* const block = object->controlBlock();
    object->atUnction = [&] { block->strong.fetch_sub(1); };
    WeakRoot const weak(object);
    { StrongRoot const last(object); }
    ASSERT_EQ(speaker.reports.size(), 1u);
    EXPECT_EQ(speaker.reports[0].what, "WarningUnctionChange");
    EXPECT_EQ(speaker.reports[0].strong, 0);
    EXPECT_EQ(speaker.reports[0].weak, 3);
    EXPECT_EQ(deaths, 0);
    delete object;
}

TEST(LastRelease, ThatFindsTheObjectGoneIsReported) {
    RecordingSpeaker speaker;
    int deaths = 0;
    auto* const object = new Leaf(&deaths);
    auto* const block = object->controlBlock();
    object->atUnction = [&] { block->object = nullptr; };
    WeakRoot const weak(object);
    { StrongLeaf const last(object); }
    ASSERT_EQ(speaker.reports.size(), 1u);
    PointerReport const& report = speaker.reports[0];
    EXPECT_EQ(report.what, "DynPtrInvalid");
    EXPECT_EQ(report.block, block);
    EXPECT_EQ(report.object, nullptr);
    EXPECT_EQ(report.strong, 0);
    EXPECT_EQ(report.weak, 3);
    EXPECT_EQ(*report.type, typeid(Leaf));
    EXPECT_EQ(countsOf(weak), (Counts{-111, 2}));
    EXPECT_EQ(deaths, 0) << "there was no object to delete";
    delete object;
}

TEST(LastRelease, ThatIsOvertakenByANewReferenceIsCancelledAndReported) {
    RecordingSpeaker speaker;
    int deaths = 0;
    auto* const object = new Root(&deaths);
    auto* const block = object->controlBlock();
    object->atUnction = [&] { block->object = nullptr; };  // opens the gap behind the decrement
    speaker.atReport = [&](PointerReport const& report) {
        if (report.what == "DynPtrInvalid")
            block->strong.fetch_add(1);  // as another thread would
    };
    { StrongRoot const last(object); }
    ASSERT_EQ(speaker.reports.size(), 2u);
    EXPECT_EQ(speaker.reports[1].what, "DestructionCancelled");
    EXPECT_EQ(speaker.reports[1].strong, 1);
    EXPECT_EQ(speaker.reports[1].weak, 2);
    EXPECT_EQ(*speaker.reports[1].type, typeid(Root));
    EXPECT_EQ(deaths, 0);
    EXPECT_EQ(block->strongNow(), 1);
    delete object;
}

template <class Pointer>
class SelfConstruction : public testing::Test {};

using PointerClasses = testing::Types<WeakRoot, WeakLeaf, StrongRoot, StrongLeaf>;
TYPED_TEST_SUITE(SelfConstruction, PointerClasses, );

TYPED_TEST(SelfConstruction, ByAssignmentIsReportedAndHarmless) {
    RecordingSpeaker speaker;
    StrongLeaf const holder(new Leaf);
    TypeParam pointer(holder);
    TypeParam const& itself = pointer;
    Counts const before = countsOf(pointer);
    pointer = itself;
    ASSERT_EQ(speaker.reports.size(), 1u);
    EXPECT_EQ(speaker.reports[0].what, "SelfConstruction");
    EXPECT_EQ(speaker.reports[0].object, &pointer);
    EXPECT_EQ(*speaker.reports[0].type, typeid(std::remove_cvref_t<decltype(*pointer)>));
    EXPECT_EQ(countsOf(pointer), before);
    EXPECT_EQ(pointer.get(), holder.get());
}

TYPED_TEST(SelfConstruction, FromItsOwnAddressIsReportedAndGivesAnEmptyPointer) {
    RecordingSpeaker speaker;
    alignas(TypeParam) std::byte storage[sizeof(TypeParam)] = {};
    auto* const itself = std::launder(reinterpret_cast<TypeParam*>(storage));
    TypeParam* const pointer = new (storage) TypeParam(*itself);
    ASSERT_EQ(speaker.reports.size(), 1u);
    EXPECT_EQ(speaker.reports[0].what, "SelfConstruction");
    EXPECT_EQ(speaker.reports[0].object, pointer);
    EXPECT_FALSE(pointer->alive());
    pointer->~TypeParam();
}

TEST(Tracing, TellsOfEachStrongReferenceTakenAndReleased) {
    RecordingSpeaker speaker;
    auto* const object = new Root;
    {
        Tracing const on;
        StrongRoot const pointer(object, "a label");
    }
    ASSERT_GE(speaker.reports.size(), 2u);
    PointerReport const& hold = speaker.reports.front();
    EXPECT_EQ(hold.what, "printRS with counts");
    EXPECT_EQ(hold.label, "a label");
    EXPECT_EQ(hold.strong, 1);
    EXPECT_EQ(hold.weak, 2);
    EXPECT_EQ(hold.object, object);
    EXPECT_EQ(*hold.type, typeid(Root));
}

TEST(Tracing, OffTellsNothingOfOrdinaryUse) {
    RecordingSpeaker speaker;
    {
        StrongRoot const pointer(new Leaf);
        WeakLeaf const weak(pointer);
        StrongLeaf const cast(weak);
    }
    EXPECT_TRUE(speaker.reports.empty());
}

TEST(Speaker, GivesPlaceToTheFormerOne) {
    auto* const standard = Nucleo::SpeakPtr::theSpeaker();
    {
        RecordingSpeaker outer;
        {
            RecordingSpeaker inner;
            EXPECT_EQ(Nucleo::SpeakPtr::theSpeaker(), &inner);
        }
        EXPECT_EQ(Nucleo::SpeakPtr::theSpeaker(), &outer);
    }
    EXPECT_EQ(Nucleo::SpeakPtr::theSpeaker(), standard);
}

// --- Static objects

TEST(StaticObject, HoldsItselfSoThatNoPointerDeletesIt) {
    int deaths = 0;
    {
        Nucleo::Auto<Leaf> object(&deaths);
        EXPECT_EQ(object.controlBlock()->strongNow(), 1);
        { StrongRoot const pointer(&object); }
        EXPECT_EQ(object.controlBlock()->strongNow(), 1);
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(StaticObject, WithASelfReferenceEndsAtMinus333ThenMinus111WithoutADelete) {
    RecordingSpeaker speaker;
    std::vector<int> passed;
    WeakRoot weak;
    int deaths = 0;
    {
        Nucleo::Auto<Leaf> object(&deaths);
        weak = WeakRoot(&object);
        speaker.atReport = [&](PointerReport const& report) {
            if (report.operation == "dies while counted")
                passed.push_back(static_cast<Block const*>(report.block)->strongNow());
        };
        Nucleo::SpeakPtr::Tracing = true;
    }
    Nucleo::SpeakPtr::Tracing = false;
    EXPECT_EQ(passed, std::vector<int>{-333});
    EXPECT_EQ(weak.controlBlock()->strongNow(), -111);
    EXPECT_EQ(deaths, 1) << "its storage is not the heap's: a delete would have ended the program";
    EXPECT_EQ(weak.get(), nullptr);
}

TEST(MemberObject, ThatNobodyHoldsEndsAtMinus333ThenMinus111) {
    RecordingSpeaker speaker;
    std::vector<int> passed;
    WeakRoot weak;
    {
        Root object;
        weak = WeakRoot(&object);
        speaker.atReport = [&](PointerReport const& report) {
            if (report.operation == "dies while counted")
                passed.push_back(static_cast<Block const*>(report.block)->strongNow());
        };
        Nucleo::SpeakPtr::Tracing = true;
    }
    Nucleo::SpeakPtr::Tracing = false;
    EXPECT_EQ(passed, std::vector<int>{-333}) << "a count of 0 is not negative";
    EXPECT_EQ(countsOf(weak), (Counts{-111, 1}));
    EXPECT_EQ(weak.controlBlock()->objectNow(), nullptr);
}

TEST(DeadPointers, AreEqualOnlyIfTheyPointedToTheSameObject) {
    StrongRoot first(new Root), second(new Root);
    WeakRoot const one(first), same(first), other(second);
    first = nullptr;
    second = nullptr;
    EXPECT_TRUE(one == same);
    EXPECT_FALSE(one == other);
    EXPECT_FALSE(one == WeakRoot());
    EXPECT_TRUE(one == nullptr);
}

}  // namespace
}  // namespace tests
