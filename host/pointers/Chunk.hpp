/// Counted arrays.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "host/pointers/StrongPtr.hpp"
#include "host/pointers/import.hpp"
#include "host/pointers/threads.hpp"

namespace Nucleo {

/// A typeless array object, the root of the family of chunks.
///
/// Owner: counted. Threads: an array belongs to one thread at a time unless
/// nobody writes it. Units: sizes in bytes where said, in elements elsewhere.
class NUCLEO_API ChunkBase : public ReferenceBase<ChunkBase> {
public:
    /// Bytes in all chunks of the process; changed by plain additions, so that
    /// a race can make it inexact. For display only.
    static std::size_t TotalMemsize;

    ~ChunkBase() override;

    /// Elements in the array. [any]
    virtual std::size_t size() const = 0;
    /// Bytes of one element. [any]
    virtual std::size_t elementSize() const = 0;
    /// Address of the first element; null may stand for an empty array, and does
    /// for one of `bool`. [any]
    virtual void* address() = 0;
    virtual void const* address() const = 0;
    /// Type of an element, and of the chunk. [any]
    virtual std::type_info const& elementType() const = 0;
    virtual std::type_info const& chunkType() const = 0;
    /// Copies up to `count` elements from `source` to the front of the array
    /// and gives the number copied; `stride` is the distance of the source's
    /// elements, in elements. [any]
    virtual std::size_t fill(void const* source, std::size_t count, int stride) = 0;
    /// Another chunk with the same elements. [any]
    virtual StrongPtr<ChunkBase, ChunkBase> copy() const = 0;
};

/// A chunk whose element type is known.
template <class T>
class TypedChunkBase : public ChunkBase {
public:
    /// Address of the vector that holds the elements. [any]
    virtual std::vector<T>* vector() = 0;
    virtual std::vector<T> const* vector() const = 0;
};

/// Adds the sized copy.
template <class T>
class TypedChunk : public TypedChunkBase<T> {
public:
    /// A new chunk of `count` elements with those from `first` on in its front;
    /// what lies beyond the source is cleared, or, with `repeatLast`, repeats
    /// its last element. [any]
    virtual StrongPtr<ChunkBase, ChunkBase> sizedCopy(std::size_t first, std::size_t count,
                                                      bool repeatLast) const = 0;
};

/// A counted `std::vector<T>`.
template <class T>
class Chunk : public TypedChunk<T>, public std::vector<T> {
public:
    explicit Chunk(std::size_t count) : std::vector<T>(count), bytes_(count * sizeof(T)) {
        ChunkBase::TotalMemsize += bytes_;
    }
    explicit Chunk(std::vector<T> const& elements)
        : std::vector<T>(elements), bytes_(elements.size() * sizeof(T)) {
        ChunkBase::TotalMemsize += bytes_;
    }
    Chunk(Chunk const&) = delete;
    Chunk& operator=(Chunk const&) = delete;
    ~Chunk() override { ChunkBase::TotalMemsize -= bytes_; }

    std::size_t size() const override { return std::vector<T>::size(); }
    std::size_t elementSize() const override { return sizeof(T); }
    void* address() override { return addressOf(*this); }
    void const* address() const override { return addressOf(*this); }
    std::type_info const& elementType() const override { return typeid(T); }
    std::type_info const& chunkType() const override { return typeid(Chunk); }

    std::size_t fill(void const* source, std::size_t count, int stride) override {
        auto const* from = static_cast<T const*>(source);
        std::size_t const copied = std::min(count, size());
        for (std::size_t i = 0; i < copied; ++i)
            (*this)[i] = from[static_cast<std::ptrdiff_t>(i) * stride];
        return copied;
    }

    StrongPtr<ChunkBase, ChunkBase> copy() const override { return new Chunk(*vector()); }

    std::vector<T>* vector() override { return this; }
    std::vector<T> const* vector() const override { return this; }

    StrongPtr<ChunkBase, ChunkBase> sizedCopy(std::size_t first, std::size_t count,
                                              bool repeatLast) const override {
        StrongPtr<Chunk, ChunkBase> const result = new Chunk(count);
        for (std::size_t i = 0; i < count; ++i) {
            if (first < size() && i < size() - first)
                (*result)[i] = (*this)[first + i];
            else if (repeatLast && size() > 0)
                (*result)[i] = this->back();
        }
        return result;
    }

private:
    /// The standard vector of `bool` packs bits, which have no address.
    template <class Self>
    static auto* addressOf(Self& self) {
        if constexpr (std::is_same_v<T, bool>)
            return static_cast<bool*>(nullptr);
        else
            return self.data();
    }

    std::size_t bytes_;  ///< what this chunk has added to `TotalMemsize`
};

}  // namespace Nucleo
