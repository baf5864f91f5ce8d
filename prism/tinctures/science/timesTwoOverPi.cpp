#include "prism/tinctures/science/timesTwoOverPi.hpp"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace prism {

namespace {

__extension__ using Product = unsigned __int128;

/// 2/pi, rounded to 64 bits, times 2^64.
constexpr std::uint64_t TwoOverPi = 0xA2F9'836E'4E44'152A;

// A double is an integer of 53 bits times a power of two; the minimal power is that
// of the subnormal numbers, which have fewer bits.
constexpr int FractionBits = 52;
constexpr int MinPower = -1074;
constexpr std::uint64_t LeadingBit = std::uint64_t{1} << FractionBits;
constexpr std::uint64_t HighestBit = std::uint64_t{1} << 63;

/// What to add when a rest is cut off behind an integer: rounds to nearest, and
/// half-way to even.
constexpr std::uint64_t carry(std::uint64_t integer, std::uint64_t rest,
                              std::uint64_t half) noexcept {
    auto const isAbove = static_cast<std::uint64_t>(rest > half);
    auto const isHalf = static_cast<std::uint64_t>(rest == half);
    return isAbove | (isHalf & integer & 1);  // without a branch
}

}  // namespace

double timesTwoOverPi(double x) noexcept {
    if (x == 0.0 || !std::isfinite(x))
        return x;
    auto const magnitude = std::bit_cast<std::uint64_t>(std::fabs(x));
    bool const isNormal = magnitude >= LeadingBit;
    std::uint64_t const mantissa = (magnitude & (LeadingBit - 1)) | (isNormal ? LeadingBit : 0);
    int power = std::max(static_cast<int>(magnitude >> FractionBits), 1) - 1 + MinPower;

    // All 128 bits, with the highest one set.
    int const zeros = std::countl_zero(mantissa);
    Product product = Product{mantissa << zeros} * TwoOverPi;
    power -= zeros;
    int const shift = (product >> 127) == 0 ? 1 : 0;
    product <<= shift;
    power -= shift;

    // The upper 64 bits are kept, and what they are rounded up by, which is added
    // to the rest below: the sum here may have 65 bits.
    auto const kept = static_cast<std::uint64_t>(product >> 64);
    std::uint64_t const up = carry(kept, static_cast<std::uint64_t>(product), HighestBit);

    // Of these, the 53 of a double are kept, or fewer.
    int const surplus = std::max(63 - FractionBits, MinPower - power);
    std::uint64_t const half = std::uint64_t{1} << (surplus - 1);
    std::uint64_t integer = kept >> (surplus - 1) >> 1;
    std::uint64_t const rest = (kept & (2 * half - 1)) + up;
    integer += carry(integer, rest, half);

    // The leading bit, where there is one, counts the power up by one.
    auto const scale = static_cast<std::uint64_t>(power + surplus - MinPower);
    return std::copysign(std::bit_cast<double>((scale << FractionBits) + integer), x);
}

}  // namespace prism
