#include "workbench/gallery/Light.hpp"

#include <cmath>

#include "workbench/common/clamp.hpp"

namespace workbench {

namespace {

/// IEC 61966-2-1. Rounded to float, in which the C libraries agree.
double freed(float component) {
    double const c = clampToUnit(component);
    return c <= 0.04045 ? c / 12.92 : static_cast<float>(std::pow((c + 0.055) / 1.055, 2.4));
}

float companded(double amount) {
    double const a = clampToUnit(amount);
    return static_cast<float>(a <= 0.0031308 ? a * 12.92 : 1.055 * std::pow(a, 1.0 / 2.4) - 0.055);
}

}  // namespace

Light lightOf(Tessar::rgba_float_t const& color) {
    return {freed(color.red()), freed(color.green()), freed(color.blue())};
}

Tessar::rgba_float_t colorOf(Light const& light) {
    return {companded(light.red), companded(light.green), companded(light.blue), 1.0F};
}

double lightness(Light const& light) {
    double const y = 0.2126 * light.red + 0.7152 * light.green + 0.0722 * light.blue;
    constexpr double Threshold = 216.0 / 24389.0;
    double const l = y > Threshold ? 116.0 * std::cbrt(y) - 16.0 : y * 24389.0 / 27.0;
    return static_cast<float>(l);
}

}  // namespace workbench
