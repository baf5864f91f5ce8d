/// Time stamps.
#pragma once

#include <atomic>
#include <cstdint>

#include "host/pointers/import.hpp"

namespace Nucleo {

/// A time stamp that says when an object last changed.
///
/// Units: ticks of `GlobalTime`, a clock that only counts changes. A later
/// stamp is a greater number. Threads: `touch` may be called on any thread;
/// two at once may take the same, later stamp, which is accepted, since stamps
/// need only grow. A reader beside a touch sees the old stamp or the new one, and
/// may not conclude anything else from it.
class NUCLEO_API Ageable {
public:
    using Stamp = std::uint64_t;

    /// The global clock.
    static std::atomic<Stamp> GlobalTime;

    /// Starts with the present time, without advancing it.
    Ageable() noexcept : stamp_(now()) {}
    Ageable(Ageable const& other) noexcept : stamp_(other.age()) {}
    Ageable& operator=(Ageable const& other) noexcept {
        setAge(other.age());
        return *this;
    }
    ~Ageable();

    /// The present time.
    static Stamp now() noexcept { return GlobalTime.load(std::memory_order_relaxed); }

    Stamp age() const noexcept { return stamp_.load(std::memory_order_relaxed); }
    void setAge(Stamp newStamp) noexcept { stamp_.store(newStamp, std::memory_order_relaxed); }

    /// Makes this the youngest of all objects.
    void touch() noexcept {
        GlobalTime.fetch_add(1);
        setAge(now());
    }

    /// Takes the given stamp if it is later than its own.
    void raiseAge(Stamp other) noexcept {
        if (other > age())
            setAge(other);
    }

private:
    std::atomic<Stamp> stamp_;
};

}  // namespace Nucleo
