/// The pointer that does not keep its object alive.
#pragma once

#include <concepts>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "host/pointers/DynPtr.hpp"

namespace Nucleo {

/// Points to a `T` of the family rooted in `B` without holding it.
///
/// It reads as empty (`alive()` is false, `get()` is null) once the object has
/// gone or is going. Built from a pointer to another class of the family it
/// casts dynamically and reads as null where the cast fails; that cast reads the
/// object, so that somebody must hold it meanwhile. A `StrongPtr` holds it itself.
///
/// Threads: one pointer object belongs to one thread at a time, as with any
/// value; the counts behind it are safe on all threads.
template <class T, class B>
class WeakPtr : public DynPtr<T, B> {
public:
    WeakPtr() noexcept = default;
    WeakPtr(std::nullptr_t) noexcept {}

    /// From an object, which need not be held by anybody.
    WeakPtr(T* object) noexcept {
        if (object == nullptr)
            return;
        share(static_cast<ReferenceBase<B>*>(object)->controlBlock());
        find(object);
    }

    WeakPtr(WeakPtr const& other) noexcept : WeakPtr() {
        if (this == &other) {
            this->speakSelfConstruction();
            return;
        }
        share(other.block);
        find(other.typed);
    }

    template <class U>
    requires(!std::same_as<U, T>) WeakPtr(WeakPtr<U, B> const& other)
    noexcept : WeakPtr() {
        share(other.controlBlock());
        find();
    }

    ~WeakPtr() { detach(); }

    WeakPtr& operator=(WeakPtr const& other) noexcept {
        if (this == &other) {
            this->speakSelfConstruction();
            return *this;
        }
        WeakPtr fresh(other);
        swap(fresh);
        return *this;
    }

    /// The object, or null where it is gone, going, or no `T`.
    T* get() const noexcept { return this->alive() ? typed : nullptr; }
    T* operator->() const noexcept { return get(); }
    T& operator*() const noexcept { return *get(); }

    explicit operator bool() const noexcept { return get() != nullptr; }

    /// Equal pointers share their control block.
    template <class U>
    bool operator==(WeakPtr<U, B> const& other) const noexcept {
        return this->block == other.controlBlock();
    }
    bool operator==(std::nullptr_t) const noexcept { return get() == nullptr; }

protected:
    /// Takes a weak count on the block.
    void share(ControlBlock<B>* shared) noexcept {
        this->block = shared;
        if (shared != nullptr)
            shared->weak.fetch_add(1);
    }

    /// Finds the object of the block as a `T`, if it is alive. Reads the object:
    /// a strong pointer holds it before.
    void find() noexcept {
        if (this->alive())
            typed = cast(this->block->objectNow());
    }

    /// The same where the object is known as a `T` already.
    void find(T* object) noexcept {
        if (this->alive())
            typed = object;
    }

    void detach() noexcept {
        if (this->block == nullptr)
            return;
        std::exchange(this->block, nullptr)->releaseWeak();
        typed = nullptr;
    }

    void swap(WeakPtr& other) noexcept {
        std::swap(this->block, other.block);
        std::swap(typed, other.typed);
    }

    void speakSelfConstruction() const noexcept {
        SpeakPtr::theSpeaker()->SelfConstruction(typeid(T), this, this->block);
    }

private:
    static T* cast(ReferenceBase<B>* object) noexcept {
        if constexpr (std::is_same_v<T, B>)
            return static_cast<B*>(object);
        else
            return dynamic_cast<T*>(static_cast<B*>(object));
    }

    T* typed = nullptr;
};

}  // namespace Nucleo
