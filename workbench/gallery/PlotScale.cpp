#include "workbench/gallery/PlotScale.hpp"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// A part of the axis left free at either end, so that curves stay clear of it.
constexpr double Margin = 0.04;

constexpr double MaxTicks = 6.0;
constexpr int MaxPowersASide = 3;

/// The least of 0.25, 0.5, 1, 2.5 and 5 that divides the extent into few ticks.
double stepFor(double extent) {
    for (double const step : {0.25, 0.5, 1.0, 2.5})
        if (extent / step < MaxTicks)
            return step;
    return 5.0;
}

/// The whole powers of ten in a number of at least 1.
int powersIn(double value) {
    int powers = 0;
    for (double power = 10.0; power <= value; power *= 10.0)
        ++powers;
    return powers;
}

double powerOfTen(int exponent) {
    double power = 1.0;
    for (int i = 0; i < exponent; ++i)
        power *= 10.0;
    return power;
}

/// The powers of ten up to a number, thinned out, without 1.
std::vector<double> powersUpTo(double value) {
    int const powers = powersIn(value);
    int const stride = (powers + MaxPowersASide - 1) / MaxPowersASide;
    std::vector<double> ticks;
    for (int i = stride; stride > 0 && i <= powers; i += stride)
        ticks.push_back(powerOfTen(i));
    return ticks;
}

}  // namespace

PlotScale::PlotScale(double min, double max)
    : min_(std::min(min, 0.0)),
      max_(std::max(max, 1.0)),
      logarithmic_(-min_ > MaxLinear || max_ > MaxLinear) {
    bottom_ = straightened(min_);
    top_ = straightened(max_);
    double const margin = Margin * (top_ - bottom_);
    bottom_ -= margin;
    top_ += margin;
}

double PlotScale::straightened(double value) const {
    double const size = std::abs(value);
    if (!logarithmic_ || size <= 1.0)
        return value;
    // Rounded to float, in which the C libraries agree.
    double const beyond = static_cast<float>(0.5 * std::log10(size));
    return value > 0.0 ? 1.0 + beyond : -1.0 - beyond;
}

double PlotScale::height(double value) const {
    return (straightened(value) - bottom_) / (top_ - bottom_);
}

std::vector<double> PlotScale::ticks() const {
    std::vector<double> ticks = logarithmic_ ? logarithmicTicks() : linearTicks();
    ticks.insert(ticks.end(), {0.0, 1.0});
    std::ranges::sort(ticks);
    ticks.erase(std::unique(ticks.begin(), ticks.end()), ticks.end());
    return ticks;
}

std::vector<double> PlotScale::linearTicks() const {
    double const step = stepFor(max_ - min_);
    std::vector<double> ticks;
    for (double i = std::ceil(min_ / step); i * step <= max_; ++i)
        if (i != 0.0)
            ticks.push_back(i * step);
    return ticks;
}

std::vector<double> PlotScale::logarithmicTicks() const {
    std::vector<double> ticks = powersUpTo(max_);
    for (double const power : powersUpTo(-min_))
        ticks.push_back(-power);
    if (min_ <= -1.0)
        ticks.push_back(-1.0);
    return ticks;
}

}  // namespace workbench
