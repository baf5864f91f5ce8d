#include "workbench/scene/View.hpp"

#include <cmath>

namespace workbench {

namespace {

constexpr double RadiansPerDegree = 3.14159265358979323846 / 180.0;

Point operator+(Point const& a, Point const& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Point operator-(Point const& a, Point const& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
Point operator*(double factor, Point const& a) {
    return {factor * a.x, factor * a.y, factor * a.z};
}
double length(Point const& a) {
    return std::sqrt(a.x * a.x + a.y * a.y + a.z * a.z);
}
Point cross(Point const& a, Point const& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// The vector with length 1, or the other one if it has no direction.
Point normalised(Point const& a, Point const& defaultDirection) {
    double const size = length(a);
    return size > 0 ? (1 / size) * a : defaultDirection;
}

/// A vector of length 1 at a right angle to both, also where they are parallel.
Point rightOf(Point const& forward, Point const& up) {
    constexpr double Parallel = 1e-9;
    for (Point const& candidate : {normalised(up, {}), Point{0, 1, 0}, Point{0, 0, -1}})
        if (Point const right = cross(forward, candidate); length(right) > Parallel)
            return normalised(right, {});
    return {1, 0, 0};
}

/// Half the height of the picture where the depth is 1. A float, as the last
/// bits of the tangent depend on the system.
float halfHeight(double zoom) {
    double const angle = zoom >= 170 ? 170 : zoom >= 0.001 ? zoom : 0.001;
    return static_cast<float>(std::tan(angle / 2 * RadiansPerDegree));
}

}  // namespace

Lens::Lens(View const& view, int width, int height)
    : eye_(view.observer),
      forward_(normalised(view.lookat - view.observer, {0, 0, -1})),
      right_(rightOf(forward_, view.up)),
      upward_(cross(right_, forward_)),
      halfWidth_(width / 2.0),
      halfHeight_(height / 2.0),
      parallel_(view.orthographic) {
    double const depth = parallel_ ? length(view.lookat - view.observer) : 1.0;
    double const half = depth * double{workbench::halfHeight(view.zoom)};
    right_ = half * right_;
    upward_ = half * upward_;
}

Ray Lens::through(int x, int y) const {
    double const across = (x + 0.5 - halfWidth_) / halfHeight_;
    double const along = (halfHeight_ - y - 0.5) / halfHeight_;
    Point const aside = across * right_ + along * upward_;
    return parallel_ ? Ray{eye_ + aside, forward_} : Ray{eye_, forward_ + aside};
}

}  // namespace workbench
