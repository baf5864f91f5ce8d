/// What the formula maps have to compute, by hand and without a map around it.
#include "benchmarks/formulas.hpp"

#include <cmath>

namespace benchmarks {

namespace {

using Tessar::rgba_float_t;

/// The start values of the parameters, where the compiler cannot see them.
struct Parameters {
    volatile double half = 0.5, one = 1.0, two = 2.0, tenth = 0.1, hue = 0.07, dying = 0.3;
};
Parameters const given;

rgba_float_t blended(double a, double b) {
    auto const sum = static_cast<float>(a) + static_cast<float>(b);
    return {sum, sum, sum, sum};
}

rgba_float_t hueAndPower(double x) {
    double const u = std::pow(x, given.one);
    double const w = given.one - (given.dying * given.hue) * u;
    double const h = std::fmod(given.hue * 3600.0 * u, 360.0);
    return blended(h, w * w);
}

rgba_float_t threePowers(double x) {
    double const p = std::exp(5.0 - 6.0 * given.two);
    return blended(std::pow(x, p) + std::pow(given.half * x, p), std::pow(given.one - x, p));
}

rgba_float_t exponential(double x) {
    double const t = std::exp(5.0 * x);
    double const gain = 1.0 + 4.0 * given.half * t * (1.0 - t);
    return blended((1.0 - t) * gain, t * gain);
}

rgba_float_t remainder(double x) {
    double const u = std::fmod(x, given.tenth) / given.tenth;
    return blended(u, 1.0 - u);
}

rgba_float_t arcTangent(double x) {
    return blended(std::atan(x) * given.half, given.one - x);
}

rgba_float_t gains(double x) {
    double const gain = 1.0 + 4.0 * given.half * x * (1.0 - x);
    return blended((1.0 - x) * gain, x * gain);
}

rgba_float_t parabola(double x) {
    double const i = given.one / given.half;
    double const slope = (given.one * i - given.half) * i;
    return blended(((1.0 - slope) * x + slope) * x, x);
}

rgba_float_t line(double x) {
    return blended(given.one - x, given.one * x);
}

rgba_float_t nothing(double) {
    return {1, 0, 0, 1};
}

}  // namespace

std::map<std::string, rgba_float_t (*)(double)> const& formulas() {
    static std::map<std::string, rgba_float_t (*)(double)> const all{
        {"Colormaps/Colorramp", hueAndPower},   {"Colormaps/DopplerMap", threePowers},
        {"Colormaps/LogRedGreen", exponential}, {"Colormaps/Ort", exponential},
        {"Colormaps/Zebramap", remainder},      {"Colormaps/ZeroInfinity", arcTangent},
        {"Colormaps/RedGreen", gains},          {"Colormaps/Muv", gains},
        {"Colormaps/Glow", parabola},           {"Colormaps/Intensitymap", line},
        {"Colormaps/Monochrome", nothing}};
    return all;
}

}  // namespace benchmarks
