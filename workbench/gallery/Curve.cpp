#include "workbench/gallery/Curve.hpp"

#include <cmath>
#include <utility>

#include "runtime/quartz/text.hpp"

namespace workbench {

namespace {

constexpr double Tolerance = 0.1;

struct Point {
    double x, y;
};

double hundredths(double value) {
    return std::floor(value * 100.0 + 0.5) / 100.0;
}

/// How far a point lies above or below the line through two others.
double distance(Point const& point, Point const& from, Point const& to) {
    double const part = (point.x - from.x) / (to.x - from.x);
    return std::abs(point.y - (from.y + (to.y - from.y) * part));
}

/// Which of the points between two others lies farthest off their line; the
/// first one if none is off by more than the tolerance.
std::size_t farthest(std::vector<Point> const& points, std::size_t first, std::size_t last) {
    std::size_t best = first;
    double maxDistance = Tolerance;
    for (std::size_t i = first + 1; i < last; ++i) {
        double const off = distance(points[i], points[first], points[last]);
        if (off > maxDistance) {
            maxDistance = off;
            best = i;
        }
    }
    return best;
}

/// Which points to keep, by the way of Ramer, Douglas and Peucker.
std::vector<bool> kept(std::vector<Point> const& points) {
    std::vector<bool> keep(points.size(), false);
    keep.front() = keep.back() = true;
    std::vector<std::pair<std::size_t, std::size_t>> open{{0, points.size() - 1}};
    while (!open.empty()) {
        auto const [first, last] = open.back();
        open.pop_back();
        std::size_t const middle = farthest(points, first, last);
        if (middle == first)
            continue;
        keep[middle] = true;
        open.emplace_back(first, middle);
        open.emplace_back(middle, last);
    }
    return keep;
}

std::string stretch(std::vector<Point> const& points) {
    std::string path;
    if (points.empty())
        return path;
    std::vector<bool> const keep = kept(points);
    for (std::size_t i = 0; i < points.size(); ++i)
        if (keep[i])
            path += (path.empty() ? "M" : "L") + Orlo::numberText(points[i].x) + " " +
                    Orlo::numberText(points[i].y);
    return path;
}

}  // namespace

std::string curvePath(std::vector<std::optional<double>> const& heights, double width) {
    double const column = width / static_cast<double>(heights.size());
    std::string path;
    std::vector<Point> points;
    double x = 0.5;
    for (std::optional<double> const& height : heights) {
        if (height) {
            points.push_back({hundredths(x * column), hundredths(*height)});
        } else {
            path += stretch(points);
            points.clear();
        }
        ++x;
    }
    return path + stretch(points);
}

}  // namespace workbench
