#include "workbench/gallery/Deficiency.hpp"

#include <array>
#include <cstddef>

namespace workbench {

namespace {

using Row = std::array<double, 3>;
using Matrix = std::array<Row, 3>;

constexpr std::array<Matrix, 3> Matrices{{
    // Protan
    {{{0.152286, 1.052583, -0.204868},
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    // Deutan
    {{{0.367322, 0.860646, -0.227968},
      {0.280085, 0.672501, 0.047413},
      {-0.011820, 0.042940, 0.968881}}},
    // Tritan
    {{{1.255528, -0.076749, -0.178779},
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
}};

double product(Row const& row, Light const& light) {
    return row[0] * light.red + row[1] * light.green + row[2] * light.blue;
}

}  // namespace

Light seenWith(Deficiency deficiency, Light const& light) {
    Matrix const& matrix = Matrices[static_cast<std::size_t>(deficiency)];
    return {product(matrix[0], light), product(matrix[1], light), product(matrix[2], light)};
}

}  // namespace workbench
