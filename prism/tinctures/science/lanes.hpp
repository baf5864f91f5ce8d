/// A few numbers at once, as every 64-bit x86 processor takes them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>

namespace prism {

using Pair [[gnu::vector_size(16)]] = double;
using Quad [[gnu::vector_size(16)]] = float;

/// What a pair or a quad is made of.
template <class Lanes>
using NumberOf = std::remove_cvref_t<decltype(Lanes{}[0])>;

template <class Lanes>
inline constexpr std::size_t LaneCount = sizeof(Lanes) / sizeof(NumberOf<Lanes>);

template <class Lanes>
Lanes load(NumberOf<Lanes> const* from) {
    Lanes lanes;
    std::memcpy(&lanes, from, sizeof lanes);
    return lanes;
}

template <class Lanes>
void store(NumberOf<Lanes>* to, Lanes lanes) {
    std::memcpy(to, &lanes, sizeof lanes);
}

/// Lane by lane the less of two; the second where one is NaN.
template <class Lanes>
Lanes lesser(Lanes first, Lanes second) {
    return first < second ? first : second;
}

/// Lane by lane the greater of two; the second where one is NaN.
template <class Lanes>
Lanes greater(Lanes first, Lanes second) {
    return first > second ? first : second;
}

/// The greatest of the lanes.
template <class Lanes>
NumberOf<Lanes> greatestOf(Lanes lanes) {
    NumberOf<Lanes> greatest = lanes[0];
    for (std::size_t i = 1; i < LaneCount<Lanes>; ++i)
        greatest = std::max(greatest, lanes[i]);
    return greatest;
}

/// The squared distance along the three axes; the order of the sums decides ties.
template <class Number>
Number squaredDistance(Number L, Number a, Number b) {
    return (a * a + L * L) + b * b;
}

}  // namespace prism
