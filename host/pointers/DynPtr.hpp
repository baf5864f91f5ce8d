/// The common part of all counted pointers.
#pragma once

#include <cstdint>

#include "host/pointers/PointerID.hpp"
#include "host/pointers/ReferenceBase.hpp"
#include "host/pointers/threads.hpp"

namespace Nucleo {

/// A numbered reference to a control block. Not used by itself: `WeakPtr` and
/// `StrongPtr` derive from it.
template <class T, class B>
class DynPtr {
public:
    /// Whether there is a block, an object in it, and no negative strong count.
    /// A pointer to an object that is just dying is not alive. [any]
    bool alive() const noexcept { return block != nullptr && block->alive(); }
    explicit operator bool() const noexcept { return alive(); }

    /// The block that is shared, or null.
    ControlBlock<B>* controlBlock() const noexcept { return block; }

    /// The pointer's running number, for diagnostics.
    std::uint32_t number() const noexcept { return id; }

protected:
    DynPtr() noexcept : id(nextPointerID()) {}
    DynPtr(DynPtr const&) = delete;
    DynPtr& operator=(DynPtr const&) = delete;
    ~DynPtr() = default;

    std::uint32_t id;
    ControlBlock<B>* block = nullptr;
};

}  // namespace Nucleo
