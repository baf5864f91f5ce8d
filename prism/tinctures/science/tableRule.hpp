/// How a table of colours answers a scalar.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <type_traits>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "host/colormap/rgba_float_t.hpp"

namespace prism {

template <std::size_t N>
using ColorTable = std::array<Tessar::rgba_float_t, N>;

/// Truncates towards zero. A number that fits no 32-bit integer, NaN included,
/// gives the most negative one.
constexpr std::int32_t truncatedByRule(double x) noexcept {
    return x > -2147483649.0 && x < 2147483648.0 ? static_cast<std::int32_t>(x)
                                                 : std::numeric_limits<std::int32_t>::min();
}

/// The same by the one instruction of the processor that answers so for every input,
/// where there is one. The answers do not depend on what the compiler knows.
constexpr std::int32_t truncated(double x) noexcept {
#if defined(__SSE2__)
    if (!std::is_constant_evaluated()) {
        // The compiler must not see a constant here: gcc would fold infinity and NaN
        // otherwise.
        asm("" : "+x"(x));
        return _mm_cvttsd_si32(_mm_set_sd(x));
    }
#endif
    return truncatedByRule(x);
}

/// The row of the truncated number, clamped to the table.
template <std::size_t N>
constexpr Tessar::rgba_float_t const& rowAt(ColorTable<N> const& table, double x) noexcept {
    constexpr auto last = static_cast<std::int32_t>(N - 1);
    std::int32_t row = truncated(x);
    row = row > last ? last : row;
    row = row < 0 ? 0 : row;
    return table[static_cast<std::size_t>(row)];
}

/// The table rule: the scale is N and not N - 1, so that row k is centred on
/// k/N, the first row is half as wide as the others, and the last one takes all
/// from (N - 1.5)/N on.
template <std::size_t N>
constexpr Tessar::rgba_float_t const& tableRow(ColorTable<N> const& table, double value) noexcept {
    return rowAt(table, value * static_cast<double>(N) + 0.5);
}

/// A table in which only some rows are filled; the others are all 0.
template <std::size_t N>
constexpr ColorTable<N> sparseTable(
    std::initializer_list<std::pair<std::size_t, Tessar::rgba_float_t>> rows) {
    ColorTable<N> table{};
    for (auto const& [row, color] : rows)
        table[row] = color;
    return table;
}

}  // namespace prism
