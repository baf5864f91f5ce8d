#include "prism/tinctures/science/timesTwoOverPi.hpp"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace prism {

namespace {

__extension__ using Wide = unsigned __int128;

/// 2/pi, rounded to 64 bits, times 2^64.
constexpr std::uint64_t TwoOverPi = 0xA2F9'836E'4E44'152A;

// A double is a mantissa of 53 bits times a power of two; the least power is
// that of the subnormal numbers.
constexpr int FractionBits = 52;
constexpr int LeastExponent = -1074;

constexpr int bitWidth(Wide x) noexcept {
    auto const upper = static_cast<std::uint64_t>(x >> 64);
    auto const lower = static_cast<std::uint64_t>(x);
    return upper != 0 ? 128 - std::countl_zero(upper) : 64 - std::countl_zero(lower);
}

/// A number as an integer times a power of two.
struct Scaled {
    Wide integer;
    int exponent;

    /// Takes the given number of bits away, and rounds to nearest, ties to even.
    constexpr void round(int bits) noexcept {
        if (bits <= 0)
            return;
        Wide const half = Wide{1} << (bits - 1);
        Wide const rest = integer & (2 * half - 1);
        integer >>= bits;
        exponent += bits;
        if (rest > half || (rest == half && (integer & 1) != 0))
            ++integer;
    }
};

}  // namespace

double timesTwoOverPi(double x) noexcept {
    if (x == 0.0 || !std::isfinite(x))
        return x;
    auto const bits = std::bit_cast<std::uint64_t>(std::fabs(x));
    std::uint64_t const fraction = bits & ((std::uint64_t{1} << FractionBits) - 1);
    auto const power = static_cast<int>(bits >> FractionBits);
    std::uint64_t const mantissa =
        power == 0 ? fraction : fraction | (std::uint64_t{1} << FractionBits);

    Scaled product{Wide{mantissa} * TwoOverPi, std::max(power, 1) - 1 + LeastExponent - 64};
    product.round(bitWidth(product.integer) - 64);
    product.round(
        std::max(bitWidth(product.integer) - (FractionBits + 1), LeastExponent - product.exponent));
    // The leading bit of the mantissa, where there is one, counts the power up.
    std::uint64_t const scale = static_cast<std::uint64_t>(product.exponent - LeastExponent);
    auto const result = std::bit_cast<double>((scale << FractionBits) +
                                              static_cast<std::uint64_t>(product.integer));
    return std::copysign(result, x);
}

}  // namespace prism
