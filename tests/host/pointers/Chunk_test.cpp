/// Counted arrays.
#include "host/pointers/Chunk.hpp"

#include <gtest/gtest.h>

#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using Nucleo::Chunk;
using Nucleo::ChunkBase;
using Nucleo::TypedChunk;
using Nucleo::TypedChunkBase;
using ChunkPtr = Nucleo::StrongPtr<Chunk<double>, ChunkBase>;
using Doubles = std::vector<double>;

ChunkPtr chunkOf(Doubles const& elements) {
    return new Chunk<double>(elements);
}

Doubles elementsOf(Nucleo::StrongPtr<ChunkBase, ChunkBase> const& chunk) {
    return *ChunkPtr(chunk)->vector();
}

TEST(ChunkOperations, StandInTheirOrder) {
    using Address = void* (ChunkBase::*)();
    using ConstAddress = void const* (ChunkBase::*)() const;
    using Vector = Doubles* (TypedChunkBase<double>::*)();
    using ConstVector = Doubles const* (TypedChunkBase<double>::*)() const;
    EXPECT_EQ(virtualSlot(&ChunkBase::size), 4u);
    EXPECT_EQ(virtualSlot(&ChunkBase::elementSize), 5u);
    EXPECT_EQ(virtualSlot(static_cast<Address>(&ChunkBase::address)), 6u);
    EXPECT_EQ(virtualSlot(static_cast<ConstAddress>(&ChunkBase::address)), 7u);
    EXPECT_EQ(virtualSlot(&ChunkBase::elementType), 8u);
    EXPECT_EQ(virtualSlot(&ChunkBase::chunkType), 9u);
    EXPECT_EQ(virtualSlot(&ChunkBase::fill), 10u);
    EXPECT_EQ(virtualSlot(&ChunkBase::copy), 11u);
    EXPECT_EQ(virtualSlot(static_cast<Vector>(&TypedChunkBase<double>::vector)), 12u);
    EXPECT_EQ(virtualSlot(static_cast<ConstVector>(&TypedChunkBase<double>::vector)), 13u);
    EXPECT_EQ(virtualSlot(&TypedChunk<double>::sizedCopy), 14u);
}

TEST(ChunkOfACount, HasThatManyClearedElements) {
    ChunkPtr const chunk = new Chunk<double>(3);
    EXPECT_EQ(elementsOf(chunk), (Doubles{0, 0, 0}));
    EXPECT_EQ(chunk->size(), 3u);
    EXPECT_EQ(chunk->elementSize(), sizeof(double));
}

TEST(ChunkOfAVector, CopiesIt) {
    Doubles source{1, 2};
    ChunkPtr const chunk = chunkOf(source);
    source[0] = 9;
    EXPECT_EQ(elementsOf(chunk), (Doubles{1, 2}));
}

TEST(ChunkAddresses, AreThoseOfTheVectorAndItsFirstElement) {
    ChunkPtr const chunk = chunkOf({1, 2});
    ChunkBase& base = *chunk;
    EXPECT_EQ(base.address(), chunk->vector()->data());
    EXPECT_EQ(static_cast<ChunkBase const&>(base).address(), chunk->vector()->data());
    EXPECT_EQ(static_cast<Chunk<double> const&>(*chunk).vector(), chunk->vector());
}

TEST(ChunkTypes, AreThatOfAnElementAndThatOfTheChunk) {
    ChunkPtr const chunk = chunkOf({});
    EXPECT_EQ(chunk->elementType(), typeid(double));
    EXPECT_EQ(chunk->chunkType(), typeid(Chunk<double>));
}

TEST(ChunkCopy, IsAnotherChunkWithTheSameElements) {
    ChunkPtr const chunk = chunkOf({1, 2, 3});
    auto const copy = chunk->copy();
    EXPECT_NE(copy.controlBlock(), chunk.controlBlock());
    EXPECT_EQ(elementsOf(copy), (Doubles{1, 2, 3}));
}

TEST(ChunkFill, TakesAsManyElementsAsFitInSteps) {
    ChunkPtr const chunk = new Chunk<double>(3);
    Doubles const source{1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(chunk->fill(source.data(), 2, 1), 2u);
    EXPECT_EQ(elementsOf(chunk), (Doubles{1, 2, 0}));
    EXPECT_EQ(chunk->fill(source.data(), 99, 2), 3u);
    EXPECT_EQ(elementsOf(chunk), (Doubles{1, 3, 5}));
}

TEST(ChunkSizedCopy, IsClearedOrRepeatedBeyondTheSource) {
    ChunkPtr const chunk = chunkOf({1, 2, 3});
    EXPECT_EQ(elementsOf(chunk->sizedCopy(1, 1, false)), (Doubles{2}));
    EXPECT_EQ(elementsOf(chunk->sizedCopy(2, 3, false)), (Doubles{3, 0, 0}));
    EXPECT_EQ(elementsOf(chunk->sizedCopy(2, 3, true)), (Doubles{3, 3, 3}));
    EXPECT_EQ(elementsOf(chunk->sizedCopy(static_cast<std::size_t>(-1), 2, true)), (Doubles{3, 3}));
    EXPECT_EQ(elementsOf(chunkOf({})->sizedCopy(0, 2, true)), (Doubles{0, 0}));
}

TEST(TotalMemsize, GrowsByTheBytesOfEachChunkAndFallsBack) {
    std::size_t const before = ChunkBase::TotalMemsize;
    {
        ChunkPtr const first = new Chunk<double>(10);
        EXPECT_EQ(ChunkBase::TotalMemsize, before + 80);
        Nucleo::StrongPtr<Chunk<int>, ChunkBase> const second =
            new Chunk<int>(std::vector<int>{1, 2, 3});
        EXPECT_EQ(ChunkBase::TotalMemsize, before + 92);
    }
    EXPECT_EQ(ChunkBase::TotalMemsize, before);
}

TEST(TotalMemsize, FallsByWhatTheChunkWasBuiltWithThoughItsVectorHasGrown) {
    std::size_t const before = ChunkBase::TotalMemsize;
    {
        ChunkPtr const chunk = new Chunk<double>(1);
        chunk->vector()->resize(100);
    }
    EXPECT_EQ(ChunkBase::TotalMemsize, before);
}

}  // namespace
}  // namespace tests
