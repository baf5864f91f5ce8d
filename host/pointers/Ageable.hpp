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
/// need only grow. The stamp itself is plain: a reader that races with a touch
/// sees the old or the new one.
class NUCLEO_API Ageable {
public:
    using Stamp = std::uint64_t;

    /// The global clock.
    static std::atomic<Stamp> GlobalTime;

    /// Starts with the present time, without advancing it.
    Ageable() noexcept : stamp_(now()) {}
    Ageable(Ageable const&) noexcept = default;
    Ageable& operator=(Ageable const&) noexcept = default;
    ~Ageable();

    /// The present time.
    static Stamp now() noexcept { return GlobalTime.load(std::memory_order_relaxed); }

    Stamp age() const noexcept { return stamp_; }
    void setAge(Stamp newStamp) noexcept { stamp_ = newStamp; }

    /// Makes this the youngest of all objects.
    void touch() noexcept {
        GlobalTime.fetch_add(1);
        stamp_ = now();
    }

    /// Takes the given stamp if it is later than its own.
    void raiseAge(Stamp other) noexcept {
        if (other > stamp_)
            stamp_ = other;
    }

private:
    Stamp stamp_;
};

}  // namespace Nucleo
