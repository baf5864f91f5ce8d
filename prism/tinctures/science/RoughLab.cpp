/// Why two corners of a cube of colours bound its points.
///
/// X, Y and Z rise with each channel, and so does f of each, and L. With x, y and
/// z for the shares of the white point, a is 500 (f(x) - f(y)), and the slope of f
/// falls: it is a constant up to 0.008856, and t^(-2/3) / 3 from there on. So
/// f'(x) / f'(y) is never below 1 or (y/x)^(2/3), whichever is less; and y/x is
/// nowhere in the cube below the least such quotient of a single channel. That
/// decides whether f(x) or f(y) rises more along a channel, for all colours of the
/// cube at once: a rises with red and blue and falls with green, b rises with red
/// and green and falls with blue. `risesMore` has the compiler check it.
///
/// What this does not account for is in `Slack`: the step of 3.3e-7 that f takes
/// where its line meets its root, the float arithmetic here, and the C library's
/// cube root, which need be neither monotone nor right beyond six digits.
#include "prism/tinctures/science/RoughLab.hpp"

#include <bit>
#include <cstdint>

namespace prism {

namespace {

/// What the difference of two values of f may be wrong by: four times 6.6e-7 for
/// the step at the point and at the corner, and 3e-7 for the floats, as measured.
constexpr float Slack = 4e-6F;

/// Whether f of the first row rises more than f of the second along a channel,
/// at every colour; by a hundredth at least.
constexpr bool risesMore(StandardIlluminant const& light, std::size_t first, std::size_t second,
                         std::size_t channel) {
    double least = 1.0;  // of the quotient of the second share and the first, or 1
    for (std::size_t i = 0; i < 3; ++i)
        least = std::min(least, light.share(second, i) / light.share(first, i));
    double const rise = light.share(first, channel), other = 1.01 * light.share(second, channel);
    return rise * rise * rise * least * least > other * other * other;
}

constexpr bool slopesAreSure(StandardIlluminant const& light) {
    constexpr std::size_t X = 0, Y = 1, Z = 2, Red = 0, Green = 1, Blue = 2;
    return risesMore(light, X, Y, Red) && risesMore(light, Y, X, Green) &&
           risesMore(light, X, Y, Blue) && risesMore(light, Y, Z, Red) &&
           risesMore(light, Y, Z, Green) && risesMore(light, Z, Y, Blue);
}

static_assert(slopesAreSure(D50) && slopesAreSure(D65));

/// One step towards the cube root of t; the error becomes about its third power.
Quad nearerRoot(Quad root, Quad t) {
    Quad const cube = root * root * root;
    return root * (cube + 2.0F * t) / (2.0F * cube + t);
}

/// The cube root of numbers from 0.008 to 1.1. A third of the exponent, taken on
/// the bits of the float, is right to 4 percent.
Quad cubeRoot(Quad t) {
    using Bits [[gnu::vector_size(16)]] = std::int32_t;
    Quad const third = __builtin_convertvector(std::bit_cast<Bits>(t), Quad) * (1.0F / 3.0F);
    Bits const guess = __builtin_convertvector(third, Bits) + 709921077;
    return nearerRoot(nearerRoot(std::bit_cast<Quad>(guess), t), t);
}

}  // namespace

RoughLab::RoughLab(StandardIlluminant const& light) {
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t channel = 0; channel < 3; ++channel)
            share_[row][channel] = static_cast<float>(light.share(row, channel));
}

inline Quad RoughLab::lightness(std::size_t row, Quad red, Quad green, Quad blue) const {
    float const* const share = share_[row];
    Quad const t = share[0] * red + share[1] * green + share[2] * blue;
    Quad const least = Quad{} + 0.008F;
    return t > 0.008856F ? cubeRoot(greater(t, least)) : 7.787F * t + 0.13793103F;
}

QuadLab RoughLab::operator()(QuadRgb const& color) const {
    auto const [red, green, blue] = color;
    Quad const x = lightness(0, red, green, blue);
    Quad const y = lightness(1, red, green, blue);
    Quad const z = lightness(2, red, green, blue);
    return {116.0F * y - 16.0F, 500.0F * (x - y), 200.0F * (y - z)};
}

QuadLab RoughLab::leastCorner(QuadRgb const& least, QuadRgb const& greatest) const {
    Quad const L = lightness(1, least.red, least.green, least.blue);
    Quad const a = lightness(0, least.red, greatest.green, least.blue) -
                   lightness(1, least.red, greatest.green, least.blue);
    Quad const b = lightness(1, least.red, least.green, greatest.blue) -
                   lightness(2, least.red, least.green, greatest.blue);
    return {116.0F * (L - Slack) - 16.0F, 500.0F * (a - Slack), 200.0F * (b - Slack)};
}

QuadLab RoughLab::greatestCorner(QuadRgb const& least, QuadRgb const& greatest) const {
    Quad const L = lightness(1, greatest.red, greatest.green, greatest.blue);
    Quad const a = lightness(0, greatest.red, least.green, greatest.blue) -
                   lightness(1, greatest.red, least.green, greatest.blue);
    Quad const b = lightness(1, greatest.red, greatest.green, least.blue) -
                   lightness(2, greatest.red, greatest.green, least.blue);
    return {116.0F * (L + Slack) - 16.0F, 500.0F * (a + Slack), 200.0F * (b + Slack)};
}

}  // namespace prism
