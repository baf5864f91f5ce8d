/// The pointer that keeps its object alive.
#pragma once

#include "host/pointers/WeakPtr.hpp"

namespace Nucleo {

/// Holds a `T` of the family rooted in `B`; the last holder deletes it.
///
/// Built from a pointer to a dead object, it holds nothing and reads as empty.
/// Built from a pointer to another class of the family, it holds the object
/// even where the dynamic cast fails and `get()` is null.
///
/// Threads: as `WeakPtr`. Errors: none; misuse is reported to `SpeakPtr`.
template <class T, class B>
class StrongPtr : public WeakPtr<T, B> {
public:
    StrongPtr() noexcept = default;
    StrongPtr(std::nullptr_t) noexcept {}

    /// From an object out of `new`, or one that somebody holds already.
    StrongPtr(T* object, char const* label = "StrongPtr") noexcept : WeakPtr<T, B>(object) {
        hold(label);
    }

    StrongPtr(StrongPtr const& other) noexcept : WeakPtr<T, B>(other) { hold("StrongPtr"); }

    /// From a pointer of any class of the family, also while its object may go on
    /// another thread: it is counted first and looked at afterwards.
    template <class U>
    StrongPtr(WeakPtr<U, B> const& other) noexcept {
        this->share(other.controlBlock());
        hold("StrongPtr");
        this->find();
    }

    ~StrongPtr() { release(); }

    StrongPtr& operator=(StrongPtr const& other) noexcept {
        if (this == &other) {
            this->speakSelfConstruction();
            return *this;
        }
        StrongPtr fresh(other);
        this->swap(fresh);
        return *this;
    }

private:
    void hold(char const* label) noexcept {
        if (this->block != nullptr && this->block->holdUnlessDead())
            trace(label, "hold");
    }

    void release() noexcept {
        auto* const shared = this->block;
        if (shared == nullptr)
            return;
        if (shared->strongNow() > 0) {
            trace("StrongPtr", "release");
            if (shared->strongNow() == 1)
                anoint();
            if (shared->strong.fetch_sub(1) == 1)
                destroy();
        }
        this->detach();
    }

    /// Lets the object act a last time while it is whole.
    void anoint() const noexcept {
        auto* const shared = this->block;
        if (auto* const object = shared->objectNow())
            object->finalUnction();
        if (shared->strongNow() != 1)
            SpeakPtr::theSpeaker()->WarningUnctionChange(shared->strongNow(), shared->weakNow(),
                                                         typeid(T));
    }

    /// The count has just fallen from 1 to 0, unless somebody was quicker.
    void destroy() const noexcept {
        auto* const shared = this->block;
        if (!shared->alive())
            SpeakPtr::theSpeaker()->DynPtrInvalid(shared, shared->objectNow(), shared->strongNow(),
                                                  shared->weakNow(), typeid(T));
        if (shared->markDeadUnlessHeld())
            delete shared->object.exchange(nullptr);
        else
            SpeakPtr::theSpeaker()->DestructionCancelled(shared->strongNow(), shared->weakNow(),
                                                         typeid(T));
    }

    void trace(char const* label, char const* operation) const noexcept {
        if (!SpeakPtr::Tracing) [[likely]]
            return;
        SpeakPtr::theSpeaker()->printRS(label, operation, this->block->strongNow(),
                                        this->block->weakNow(), typeid(T), this->block,
                                        this->block->objectNow());
    }
};

}  // namespace Nucleo
