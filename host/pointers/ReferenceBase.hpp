/// The base of counted classes, and the control block that counts.
#pragma once

#include <atomic>
#include <cstdint>

#include "host/pointers/SpeakPtr.hpp"
#include "host/pointers/threads.hpp"

namespace Nucleo {

template <class B>
class ReferenceBase;

/// The counts of one object, shared by all pointers to it.
///
/// Owner: nobody alone; freed by whoever takes `weak` to zero, which is never
/// before the object itself has gone. Threads: both counts are changed by
/// atomic operations only; a test of a count is an ordinary load and therefore
/// only advice, but for those of `holdUnlessDead` and `markDeadUnlessHeld`.
template <class B>
struct ControlBlock {
    /// `strong` of an object that is gone, or is just being deleted.
    static constexpr std::int32_t Dead = -111;
    /// `strong`, for an instant, of an object that dies while still counted.
    static constexpr std::int32_t DiedWhileCounted = -333;

    std::atomic<std::int32_t> strong{0};             ///< strong holders; negative means dead
    std::atomic<std::int32_t> weak{1};               ///< all pointers, and the object itself
    std::atomic<ReferenceBase<B>*> object{nullptr};  ///< null when it is gone

    std::int32_t strongNow() const noexcept { return strong.load(std::memory_order_relaxed); }
    std::int32_t weakNow() const noexcept { return weak.load(std::memory_order_relaxed); }
    ReferenceBase<B>* objectNow() const noexcept { return object.load(std::memory_order_relaxed); }

    bool alive() const noexcept { return objectNow() != nullptr && strongNow() >= 0; }

    /// Adds one strong holder; false if the object is dead. Test and addition are
    /// one step, so that nothing is added to an object that dies in between.
    bool holdUnlessDead() noexcept {
        std::int32_t count = strongNow();
        while (count >= 0)
            if (strong.compare_exchange_weak(count, count + 1))
                return true;
        return false;
    }

    /// Puts `Dead` in the place of a strong count below 1; false if somebody holds
    /// the object. Test and exchange are one step: a reference that comes between
    /// the two would be one to freed memory.
    bool markDeadUnlessHeld() noexcept {
        std::int32_t count = strongNow();
        while (count < 1)
            if (strong.compare_exchange_weak(count, Dead))
                return true;
        return false;
    }

    /// Gives one weak count back; the last one frees the block.
    void releaseWeak() noexcept {
        if (weak.fetch_sub(1) == 1)
            delete this;
    }
};

/// Base of every class whose objects are held by `StrongPtr` and `WeakPtr`.
///
/// `B` is the class that roots the family: `class Colormap : public
/// ReferenceBase<Colormap>`. An object that a `StrongPtr` has held is deleted
/// by the last one and must come from `new`; a static object needs `Auto`.
template <class B>
class ReferenceBase {
public:
    /// Called when the strong count is 1 and about to fall: the object's last
    /// chance to act while it is whole. Almost all classes keep this empty one.
    /// [any]
    virtual void finalUnction() {}

    /// Marks the object as dead for every pointer, however it came to die.
    virtual ~ReferenceBase() {
        if (block == nullptr)
            return;
        if (block->strongNow() >= 0) {
            std::int32_t const held = block->strong.exchange(ControlBlock<B>::DiedWhileCounted);
            if (SpeakPtr::Tracing)
                SpeakPtr::theSpeaker()->printRS("ReferenceBase::~ReferenceBase",
                                                "dies while counted", held, block->weakNow(),
                                                typeid(B), block, this);
        }
        block->strong.exchange(ControlBlock<B>::Dead);
        block->object.store(nullptr, std::memory_order_relaxed);
        block->releaseWeak();
    }

    /// The counts of this object.
    ControlBlock<B>* controlBlock() const noexcept { return block; }

protected:
    ReferenceBase() : block(new ControlBlock<B>) { block->object = this; }

    /// A copy is another object: it is counted by a block of its own.
    ReferenceBase(ReferenceBase const&) : ReferenceBase() {}
    ReferenceBase& operator=(ReferenceBase const&) noexcept { return *this; }

    /// One strong reference of the object on itself, for static objects.
    void holdSelf() noexcept { block->holdUnlessDead(); }

private:
    ControlBlock<B>* block;
};

}  // namespace Nucleo
