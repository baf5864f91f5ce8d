#include <gtest/gtest.h>

#include <cmath>

#include "workbench/scene/View.hpp"

using namespace workbench;

namespace {

constexpr double Tolerance = 1e-6;  // the tangent is a float

/// The place of a ray at a depth.
Point at(Ray const& ray, double depth) {
    return {ray.origin.x + depth * ray.direction.x, ray.origin.y + depth * ray.direction.y,
            ray.origin.z + depth * ray.direction.z};
}

void expectNear(Point const& found, Point const& expected, char const* what) {
    EXPECT_NEAR(found.x, expected.x, Tolerance) << what;
    EXPECT_NEAR(found.y, expected.y, Tolerance) << what;
    EXPECT_NEAR(found.z, expected.z, Tolerance) << what;
}

View looking(Point const& from, Point const& to, Point const& up) {
    View view;
    view.observer = from;
    view.lookat = to;
    view.up = up;
    view.zoom = 90;
    return view;
}

struct ViewCase {
    char const* what;
    View view;
    Point middle, right, top;  ///< where the rays end up at "lookat" or at depth 1
};

TEST(Views, TheMiddleIsLookedAtAndUpIsUp) {
    ViewCase const table[] = {
        {"along -z", looking({0, 0, 5}, {0, 0, 4}, {0, 1, 0}), {0, 0, 4}, {1, 0, 4}, {0, 1, 4}},
        {"along +x", looking({0, 0, 0}, {1, 0, 0}, {0, 1, 0}), {1, 0, 0}, {1, 0, 1}, {1, 1, 0}},
        {"z is up", looking({0, 0, 0}, {0, 1, 0}, {0, 0, 1}), {0, 1, 0}, {1, 1, 0}, {0, 1, 1}},
        {"up is tilted", looking({0, 0, 1}, {0, 0, 0}, {0, 3, 7}), {0, 0, 0}, {1, 0, 0}, {0, 1, 0}},
        {"up is not of length 1",
         looking({0, 0, 1}, {0, 0, 0}, {0, 1e-20, 0}),
         {0, 0, 0},
         {1, 0, 0},
         {0, 1, 0}},
        {"down along up",
         looking({0, 1, 0}, {0, 0, 0}, {0, 1, 0}),
         {0, 0, 0},
         {1, 0, 0},
         {0, 0, -1}},
        {"no up", looking({0, 0, 1}, {0, 0, 0}, {0, 0, 0}), {0, 0, 0}, {1, 0, 0}, {0, 1, 0}},
        {"no direction", looking({2, 2, 2}, {2, 2, 2}, {0, 1, 0}), {2, 2, 1}, {3, 2, 1}, {2, 3, 1}},
    };
    for (ViewCase const& each : table) {
        Lens const lens(each.view, 101, 101);
        double const edge = 50.0 / 50.5;  // the middle of the last pixel
        auto const towards = [&](Point const& side) {
            return Point{each.middle.x + edge * (side.x - each.middle.x),
                         each.middle.y + edge * (side.y - each.middle.y),
                         each.middle.z + edge * (side.z - each.middle.z)};
        };
        expectNear(at(lens.through(50, 50), 1), each.middle, each.what);
        expectNear(at(lens.through(100, 50), 1), towards(each.right), each.what);
        expectNear(at(lens.through(50, 0), 1), towards(each.top), each.what);
    }
}

TEST(Views, TheZoomIsTheVerticalAngle) {
    struct {
        double zoom, half;
    } const table[] = {{90, 1},
                       {45, std::tan(22.5 * std::acos(-1.0) / 180)},
                       {170, std::tan(85 * std::acos(-1.0) / 180)},
                       {179, std::tan(85 * std::acos(-1.0) / 180)},
                       {1e300, std::tan(85 * std::acos(-1.0) / 180)},
                       {0, std::tan(0.0005 * std::acos(-1.0) / 180)},
                       {-5, std::tan(0.0005 * std::acos(-1.0) / 180)},
                       {std::nan(""), std::tan(0.0005 * std::acos(-1.0) / 180)}};
    for (auto const& each : table) {
        View view = looking({0, 0, 0}, {0, 0, -1}, {0, 1, 0});
        view.zoom = each.zoom;
        // the upper edge of a picture of two rows lies half a row above the first
        Ray const ray = Lens(view, 4, 2).through(0, 0);
        EXPECT_NEAR(ray.direction.y * 2, each.half, each.half * Tolerance) << each.zoom;
        EXPECT_NEAR(ray.direction.x * 2, -3 * each.half, 3 * each.half * Tolerance) << each.zoom;
        EXPECT_NEAR(ray.direction.z, -1, Tolerance);
    }
}

TEST(Views, ParallelRaysSeeTheSameAtWhatIsLookedAt) {
    View view = looking({1, 2, 8}, {1, 2, 3}, {0, 1, 0});
    Lens const perspective(view, 40, 30);
    view.orthographic = true;
    Lens const parallel(view, 40, 30);
    for (int x : {0, 7, 39})
        for (int y : {0, 15, 29}) {
            expectNear(at(parallel.through(x, y), 5), at(perspective.through(x, y), 5), "lookat");
            expectNear(parallel.through(x, y).direction, {0, 0, -1}, "direction");
        }
}

}  // namespace
