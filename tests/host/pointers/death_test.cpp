/// The death of counted objects, and every diagnostic path.
#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <vector>

#include "host/pointers/Auto.hpp"
#include "tests/host/pointers/family.hpp"
#include "tests/support/RecordingSpeaker.hpp"

namespace tests {
namespace {

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
