/// Counted pointers: numbers, layout, counts, emptiness and casts.
#include "host/pointers/StrongPtr.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <thread>
#include <vector>

#include "tests/host/pointers/family.hpp"
#include "tests/support/Rendezvous.hpp"
#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using Nucleo::PointerID;

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

TEST(WeakPointer, ToNoObjectIsEmpty) {
    Root* const none = nullptr;
    WeakRoot const weak(none);
    EXPECT_FALSE(weak);
    EXPECT_EQ(weak.controlBlock(), nullptr);
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
                for (int k = 0; k < 4000; ++k) {
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

}  // namespace
}  // namespace tests
