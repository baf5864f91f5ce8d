/// Doubles as a row of neighbours.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace workbench {

inline double nextDouble(double value) noexcept {
    return std::nextafter(value, std::numeric_limits<double>::infinity());
}

inline double previousDouble(double value) noexcept {
    return std::nextafter(value, -std::numeric_limits<double>::infinity());
}

/// The place of a finite double in the row of all of them; 0 for both zeros.
inline std::int64_t placeOf(double value) noexcept {
    auto const bits = std::bit_cast<std::int64_t>(value);
    return bits >= 0 ? bits : std::numeric_limits<std::int64_t>::min() - bits;
}

inline double atPlace(std::int64_t place) noexcept {
    return std::bit_cast<double>(place >= 0 ? place
                                            : std::numeric_limits<std::int64_t>::min() - place);
}

/// The double with as many doubles below it, down to `a`, as above it, up to `b`;
/// `a` if they are neighbours.
inline double middleDouble(double a, double b) noexcept {
    std::int64_t const first = placeOf(a), last = placeOf(b);
    // Of one sign, the distance fits; of two, the sum does.
    return atPlace((first < 0) == (last < 0) ? first + (last - first) / 2 : (first + last) / 2);
}

}  // namespace workbench
