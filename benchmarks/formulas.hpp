/// What the formula maps have to compute: whole lookups by hand, without a map around
/// them, to be inlined where they are used.
///
/// All four components are computed, by vectors where that is quicker. The parameters
/// stand in registers, but are taken for new ones in each lookup: a map keeps nothing
/// beside them either.
#pragma once

#include <algorithm>
#include <cmath>

#include "prism/tinctures/science/arithmetic.hpp"
#include "prism/tinctures/science/tableRule.hpp"
#include "prism/tinctures/science/timesTwoOverPi.hpp"

namespace benchmarks {

using prism::Quad;

/// A parameter that the compiler must not know, nor what comes of it.
inline double fresh(double parameter) {
    asm volatile("" : "+x"(parameter));
    return parameter;
}
inline Quad fresh(Quad parameter) {
    asm volatile("" : "+x"(parameter));
    return parameter;
}

struct Constant {
    Quad color{1, 0, 0, 1};
    Quad operator()(double) const { return fresh(color); }
};

struct Line {
    Quad start{0, 0, 0, 1}, end{1, 1, 1, 1};
    Quad operator()(double x) const {
        return prism::weighted(fresh(start), 1.0 - x) + prism::weighted(fresh(end), x);
    }
};

struct Stripes {
    Quad start{0, 0, 0, 1}, end{1, 1, 1, 1};
    double width = 0.1, phase = 0.0;
    Quad operator()(double x) const {
        double const w = fresh(width);
        double u = std::fmod(x - fresh(phase) * w, w) / w;
        u = u < 0.0 ? u + 1.0 : u;
        return prism::weighted(fresh(end), u) + prism::weighted(fresh(start), 1.0 - u);
    }
};

struct Parabola {
    Quad glow{1, 0.6F, 0, 1};
    double center = 0.5;
    Quad operator()(double v) const {
        double const c = fresh(center);
        if (c == 0.0 || c == 1.0 || c != c)
            return Quad{};
        prism::Pair const reciprocals = prism::Pair{1.0, 1.0} / prism::Pair{c, 1.0 - c};
        double const i = reciprocals[0], j = reciprocals[1];
        auto const channels = [=](prism::Pair k) {
            prism::Pair const x = (k * i - c) * j;
            return ((1.0 - x) * v + x) * v;
        };
        Quad const color = fresh(glow);
        auto const [redGreen, blueAlpha] = prism::widened(color);
        return prism::withAlphaOf(prism::narrowed({channels(redGreen), channels(blueAlpha)}),
                                  color);
    }
};

/// The gradient of two maps, at one place.
struct Bend {
    Quad start{1, 0, 0, 1}, end{0, 1, 0, 1};
    double blend = 0.0, multiplier = 0.5;
    Quad at(double t) const {
        double const b = fresh(blend), m = 4.0 * fresh(multiplier);
        double const gain = 1.0 + m * t * (1.0 - t), bendGain = 1.0 + m * b * (1.0 - b);
        Quad const s = fresh(start), one{1, 1, 1, 1};
        Quad const first = prism::weighted(s, (1.0 - t) * gain);
        Quad const last = prism::weighted(fresh(end), t * (1.0 - b) * bendGain * gain);
        Quad const complement =
            prism::weighted(one - prism::withAlphaOf(s, Quad{}), t * b * bendGain * gain);
        return prism::withAlphaOf(complement + last + first, complement + first + last);
    }
};

struct Gradient : Bend {
    Quad operator()(double x) const { return at(prism::clamped(x)); }
};

struct ExponentialGradient : Bend {
    Quad operator()(double x) const { return at(std::exp(5.0 * prism::clamped(x))); }
};

/// The band of zero asks for the arc tangent; where it is empty, the sign is all.
struct TwoGradients {
    Quad startPositive{0.5F, 1, 0, 1}, endPositive{0, 0.4F, 0.5F, 1};
    Quad startNegative{1, 0, 0, 1}, endNegative{1, 1, 0, 1}, zero{1, 1, 1, 1};
    double epsilon = 0.0, min = 0.0, max = 1.0;
    Quad operator()(double x) const {
        double const low = fresh(min), band = fresh(epsilon);
        double const v = (fresh(max) - low) * x + low;
        if (band > 0.0 && std::fabs(prism::timesTwoOverPi(std::atan(v))) < band)
            return fresh(zero);
        return v < 0.0 ? prism::weighted(fresh(startNegative), x + 1.0) -
                             prism::weighted(fresh(endNegative), x)
                       : prism::weighted(fresh(startPositive), 1.0 - x) +
                             prism::weighted(fresh(endPositive), x);
    }
};

struct Lines {
    double deviation = 0.5, lineintensity = 1.0, intensity = 1.0, linewidth = 2.0;
    Quad operator()(double t) const {
        if (t <= 0.0 || t >= 0.996078431372549)
            return Quad{0, 0, 0, 1};
        double const d = fresh(deviation), height = fresh(lineintensity), s = t + t, u = s - 1.0;
        double const p = std::exp(5.0 - 6.0 * fresh(linewidth));
        double const red = t > 0.5 ? 0.0 : prism::clamped(d >= s ? s / d : (s - 1.0) / (d - 1.0));
        double const blue = prism::clamped(1.0 - d >= u ? u / (1.0 - d) : (1.0 - u) / d);
        double const white = fresh(intensity) * std::pow(t <= 0.5 ? s : (t - 1.0) * -2.0, p);
        return prism::narrowed({prism::Pair{std::pow(red, p) * height + white, white},
                                prism::Pair{std::pow(blue, p) * height + white, 1.0}});
    }
};

/// The hue chooses among four numbers, without a branch that nobody could foresee.
struct Hue {
    double color = 0.07, saturator = 0.3, purity = 1.0, exponent = 1.0, shift = 0.0;
    Quad operator()(double x) const {
        constexpr unsigned char Choice[6][3] = {{0, 3, 1}, {2, 0, 1}, {1, 0, 3},
                                                {1, 2, 0}, {3, 1, 0}, {0, 1, 2}};
        double const power = fresh(exponent), c = fresh(color);
        double const u = fresh(shift) + (power == 1.0 ? x : std::pow(x, power));
        double const y = fresh(saturator) * c * u, w = 1.0 - y;
        if (y > 1.0)
            return Quad{0, 0, 0, 1};
        auto const hue = static_cast<float>(c * 3600.0 * u);
        float const rest = std::fabs(hue) < 360.0F
                               ? hue
                               : static_cast<float>(std::fmod(static_cast<double>(hue), 360.0));
        float const g = (rest < 0.0F ? rest + 360.0F : rest) * 0.016666668F;
        auto const sixth = prism::truncated(static_cast<double>(g));
        auto const V = static_cast<float>(w * w), S = static_cast<float>(w * fresh(purity));
        double const f = static_cast<double>(g - static_cast<float>(sixth));
        float const numbers[4] = {
            V, (1.0F - S) * V,
            static_cast<float>((1.0 - f * static_cast<double>(S)) * static_cast<double>(V)),
            static_cast<float>(((f - 1.0) * static_cast<double>(S) + 1.0) *
                               static_cast<double>(V))};
        auto const& choice = Choice[std::min(static_cast<unsigned>(sixth), 5U)];
        return Quad{numbers[choice[0]], numbers[choice[1]], numbers[choice[2]], 1};
    }
};

}  // namespace benchmarks
