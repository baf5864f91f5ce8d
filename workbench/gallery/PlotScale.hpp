/// The vertical axis of a plot of colour components.
#pragma once

#include <vector>

namespace workbench {

/// Maps numbers to heights, 0 for the bottom and 1 for the top.
///
/// The axis always holds 0 and 1. It is linear as long as that shows what lies
/// between them; for components that grow beyond `MaxLinear` it is linear from
/// -1 to 1, and beyond that two powers of ten are as long as the way from 0 to 1.
class PlotScale {
public:
    static constexpr double MaxLinear = 10.0;

    /// An axis that holds all from `min` to `max`, which are finite.
    PlotScale(double min, double max);

    bool isLogarithmic() const noexcept { return logarithmic_; }
    double height(double value) const;
    /// The numbers to write along the axis, in rising order, 0 and 1 among them.
    std::vector<double> ticks() const;

private:
    double straightened(double value) const;
    std::vector<double> linearTicks() const;
    std::vector<double> logarithmicTicks() const;

    double min_;
    double max_;
    bool logarithmic_;
    double bottom_;  ///< straightened, with a margin
    double top_;
};

}  // namespace workbench
