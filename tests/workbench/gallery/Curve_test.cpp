#include "workbench/gallery/Curve.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace {

using workbench::curvePath;
using Heights = std::vector<std::optional<double>>;

struct CurveCase {
    char const* rule;
    Heights heights;
    std::string path;
};

CurveCase const curveCases[] = {
    {"a level line needs its ends only", {3.0, 3.0, 3.0, 3.0}, "M5 3L35 3"},
    {"so does a slope", {0.0, 10.0, 20.0, 30.0}, "M5 0L35 30"},
    {"a step keeps its edge", {1.0, 1.0, 9.0, 9.0}, "M5 1L15 1L25 9L35 9"},
    {"less than a tenth is not seen", {1.0, 1.09, 1.0, 1.0}, "M5 1L35 1"},
    {"more is", {1.0, 1.2, 1.0, 1.0}, "M5 1L15 1.2L25 1L35 1"},
    {"hundredths suffice", {1.23456, 1.23456, 7.0, 7.001}, "M5 1.23L15 1.23L25 7L35 7"},
    {"a gap divides the line", {1.0, 1.0, std::nullopt, 2.0}, "M5 1L15 1M35 2"},
    {"nothing but gaps", {std::nullopt, std::nullopt}, ""},
};

TEST(Curve, KeepsWhatCanBeSeen) {
    for (auto const& [rule, heights, path] : curveCases)
        EXPECT_EQ(curvePath(heights, 40.0 * (heights.size() == 2 ? 0.5 : 1.0)), path) << rule;
}

/// The height of a path of straight lines at a place.
double heightAt(std::string const& path, double place) {
    std::string numbers = path;
    for (char& letter : numbers)
        letter = letter == 'M' || letter == 'L' ? ' ' : letter;
    std::istringstream stream(numbers);
    double x0 = 0, y0 = 0, x = 0, y = 0;
    stream >> x0 >> y0;
    while (stream >> x >> y && x < place) {
        x0 = x;
        y0 = y;
    }
    return y0 + (y - y0) * (place - x0) / (x - x0);
}

TEST(Curve, NowhereLeavesTheHeightsByMoreThanATenth) {
    Heights heights;
    for (int i = 0; i < 640; ++i)
        heights.emplace_back(90.0 + 80.0 * std::sin(i * i / 20000.0));
    std::string const path = curvePath(heights, 640.0);
    for (int i = 1; i < 640; ++i)
        EXPECT_NEAR(heightAt(path, i + 0.5), heights[static_cast<std::size_t>(i)].value(), 0.12)
            << i;
    EXPECT_LT(path.size(), 3500U);
}

}  // namespace
