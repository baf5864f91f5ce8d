/// Lab to a few parts in a million, for what need not be right to the last bit.
#pragma once

#include "prism/tinctures/science/lanes.hpp"
#include "prism/tinctures/science/standardIlluminant.hpp"

namespace prism {

/// Four colours without companding, in percent.
struct QuadRgb {
    Quad red, green, blue;
};

/// Four points.
struct QuadLab {
    Quad L, a, b;
};

/// The way from linear RGB to Lab in floats, for channels from 0 to 100 percent.
class RoughLab {
public:
    explicit RoughLab(StandardIlluminant const& light);

    /// Points that are no farther than `Blur` from those of the exact conversion.
    QuadLab operator()(QuadRgb const& color) const;

    /// Corners of four boxes around the exactly converted points of all colours
    /// whose channels are each between those of two colours.
    QuadLab leastCorner(QuadRgb const& least, QuadRgb const& greatest) const;
    QuadLab greatestCorner(QuadRgb const& least, QuadRgb const& greatest) const;

    /// How far a point may be from the exact one: six times what was measured.
    static constexpr double Blur = 0.001;

private:
    /// The cube-root law for the share of X, Y or Z.
    Quad lightness(std::size_t row, Quad red, Quad green, Quad blue) const;

    float share_[3][3];
};

}  // namespace prism
