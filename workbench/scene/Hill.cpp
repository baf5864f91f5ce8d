#include "workbench/scene/Hill.hpp"

namespace workbench {

namespace {

/// The square of a coordinate, in half edges.
double square(UniformGrid const& grid, int index) {
    double const x = grid.coordinate(index) / grid.halfEdge;
    return x * x;
}

}  // namespace

double Hill::sample(int i, int j, int k) const {
    double const u = (square(grid(), i) + square(grid(), j) + square(grid(), k)) / 2.0;
    double const rest = u < 1.0 ? 1.0 - u : 0.0;
    return height_ * rest * rest / (1.0 + 8.0 * age_ * u);
}

}  // namespace workbench
