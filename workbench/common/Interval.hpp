/// Numbers from one to another.
#pragma once

namespace workbench {

/// All numbers between two, which may stand in either order.
struct Interval {
    double min = 0.0;
    double max = 1.0;

    /// The number after so many of all equal steps from `min` to `max`; with one
    /// step, the number at a part of the interval.
    constexpr double at(double steps, double allSteps = 1.0) const noexcept {
        return min + (max - min) * steps / allSteps;
    }

    bool operator==(Interval const&) const = default;
};

}  // namespace workbench
