/// Numbers kept within bounds.
#pragma once

namespace workbench {

/// The nearest number from 0 to 1; NaN is 0.
constexpr double clampToUnit(double value) noexcept {
    return value >= 1.0 ? 1.0 : value > 0.0 ? value : 0.0;
}

}  // namespace workbench
