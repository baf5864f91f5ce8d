/// The lights under which colours are compared.
#pragma once

#include <array>

#include "host/values/Enum.hpp"

namespace prism {

/// Red, green and blue without companding, in percent; or three numbers for each
/// of X, Y and Z.
using Triple = std::array<double, 3>;

/// The way from linear RGB to XYZ, and to the shares of the white point, under one
/// standard illuminant. Quotients are stored as reciprocals, rounded as they stand.
struct StandardIlluminant {
    std::array<Triple, 3> matrix;
    Triple inverseWhite;
    Triple threshold;  ///< 0.008856 of the white point

    /// What a channel adds to the share of X, Y or Z in the white point's.
    constexpr double share(std::size_t row, std::size_t channel) const {
        return matrix[row][channel] * inverseWhite[row];
    }
};

constexpr StandardIlluminant D50{
    {{{0.4360747, 0.3850649, 0.1430804},
      {0.2225045, 0.7168786, 0.0606169},
      {0.0139322, 0.0971045, 0.7141733}}},
    {0.010371077140071768, 0.01, 0.012118127506937628},
    {0.8539132319999999, 0.8855999999999999, 0.730805976},
};

/// The rows do not quite sum to the white point, so that white gets a small tint.
constexpr StandardIlluminant D65{
    {{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}},
    {0.010521110608435826, 0.01, 0.009184170164304804},
    {0.8417362319999999, 0.8855999999999999, 0.9642678479999999},
};

/// D50 where that word is selected, and D65 otherwise.
inline StandardIlluminant const& selected(Orlo::Enum const& illuminant) {
    return illuminant.Equal("D50") ? D50 : D65;
}

}  // namespace prism
