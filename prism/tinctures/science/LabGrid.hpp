/// A regular grid of colours, and its points in Lab.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "prism/tinctures/science/LabColor.hpp"
#include "prism/tinctures/science/RoughLab.hpp"

namespace prism {

/// The points of a regular RGB grid with `steps` values a channel, 0 to 1.
///
/// Point `(i * steps + j) * steps + k` has red `i * h`, green `j * h` and blue
/// `k * h`, where h is the rounded `1 / (steps - 1)`: red varies slowest. The one
/// point of a grid of one step is NaN in all channels.
class RgbGrid {
public:
    explicit RgbGrid(int steps) : steps_(steps), h_(1.0 / (steps - 1)) {}

    int steps() const noexcept { return steps_; }
    /// The value of a channel at a step.
    double channel(int step) const noexcept { return step * h_; }
    RgbTriple operator[](std::size_t index) const noexcept;

private:
    int steps_;
    double h_;
};

/// Steps of red, green and blue.
using Steps = std::array<int, 3>;

/// A sub-cube of a grid: the points from the first steps up to the last ones.
struct Cube {
    Steps first, end;

    int size(std::size_t channel) const { return end[channel] - first[channel]; }
    bool isEmpty() const { return size(0) == 0 || size(1) == 0 || size(2) == 0; }

    /// Its points have places, in the order of their indices in the grid.
    std::size_t places() const;
    Steps at(std::size_t place) const;
    template <class Operation>
    void forEach(Operation operation) const;
};

/// A grid under one illuminant.
class LabGrid {
public:
    /// Of which that many points are going to be picked.
    LabGrid(Orlo::Enum const& illuminant, RgbGrid const& grid, std::size_t picks);

    Cube whole() const { return {{0, 0, 0}, {steps_, steps_, steps_}}; }
    std::uint32_t index(Steps const& at) const;
    /// A point by the exact conversion, near to nothing.
    LabPoint point(Steps const& at) const;
    /// A channel at a step without companding, in percent.
    double linear(int step) const { return linear_[static_cast<std::size_t>(step)]; }
    RoughLab const& rough() const { return rough_; }
    /// Whether so many points are picked that it is cheaper to convert all exactly:
    /// measured at a quarter of them.
    bool isDense() const { return isDense_; }

private:
    int steps_;
    StandardIlluminant const& light_;
    RoughLab rough_;
    bool isDense_;
    std::vector<double> linear_;  ///< the companding of a channel takes few values
};

template <class Operation>
void Cube::forEach(Operation operation) const {
    for (int red = first[0]; red < end[0]; ++red)
        for (int green = first[1]; green < end[1]; ++green)
            for (int blue = first[2]; blue < end[2]; ++blue)
                operation(Steps{red, green, blue});
}

}  // namespace prism
