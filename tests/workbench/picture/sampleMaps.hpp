/// Maps and colours for tests.
#pragma once

#include <limits>

#include "workbench/picture/ramp.hpp"

namespace tests {

inline constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
inline constexpr float Infinity = std::numeric_limits<float>::infinity();

/// A map that gives the value itself as red, and the same green and blue everywhere.
class RedRamp : public Orlo::Colormap {
public:
    int getMin() const override { return -1; }
    int getMax() const override { return 3; }
    int getSize() const override { return 7; }
    Orlo::rgba_float_t getColor(double value) const override { return {float(value), 0.5F, 0, 1}; }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }
};

inline workbench::Samples samplesOf(std::vector<Orlo::rgba_float_t> const& colors) {
    return {{0.0, 1.0}, colors};
}

}  // namespace tests
