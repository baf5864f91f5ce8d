/// A map that no object of the library has made.
#pragma once

#include "host/colormap/Colormap.hpp"

namespace tests {

class ForeignMap : public Orlo::Colormap {
public:
    int getMin() const override { return 0; }
    int getMax() const override { return 1; }
    int getSize() const override { return 2; }
    Tessar::rgba_float_t getColor(double) const override { return {0.25, 0.5, 0.75, 1}; }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }
};

}  // namespace tests
