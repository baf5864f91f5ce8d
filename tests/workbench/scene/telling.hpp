/// Maps and fields whose answers tell what was asked.
#pragma once

#include <functional>
#include <utility>

#include "host/colormap/Colormap.hpp"
#include "workbench/scene/Field.hpp"
#include "workbench/scene/View.hpp"

namespace tests {

/// A map whose colours tell the scalar that was looked up: red is the scalar,
/// green its opposite, blue a constant. Alpha is 0, as in tables.
class TellingMap : public Orlo::Colormap {
public:
    explicit TellingMap(double blue, int min = 0, int max = 1)
        : blue_(blue), min_(min), max_(max) {}

    int getMin() const override { return min_; }
    int getMax() const override { return max_; }
    int getSize() const override { return 256; }
    Tessar::rgba_float_t getColor(double value) const override {
        double const part = (value - min_) / (max_ - min_);
        return {part, 1.0 - part, blue_, 0.0};
    }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }

private:
    double blue_;
    int min_;
    int max_;
};

/// A field whose samples a function gives.
class FunctionField : public workbench::Field {
public:
    using Function = std::function<double(int, int, int)>;

    FunctionField(workbench::UniformGrid const& grid, Function function)
        : Field(grid), function_(std::move(function)) {}

    double sample(int i, int j, int k) const override { return function_(i, j, k); }

private:
    Function function_;
};

/// The ray that meets a plane across the axis at these two coordinates.
inline workbench::Ray rayAt(int normal, double first, double second) {
    switch (normal) {
    case 0:
        return {{9, first, second}, {-1, 0, 0}};
    case 1:
        return {{first, 9, second}, {0, -1, 0}};
    default:
        return {{first, second, 9}, {0, 0, -1}};
    }
}

}  // namespace tests
