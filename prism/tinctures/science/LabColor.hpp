/// The perceptual colour space: CIE L*a*b*.
#pragma once

#include <vector>

#include "prism/tinctures/science/standardIlluminant.hpp"

namespace prism {

/// A colour on the scale 0 to 1, gamma-encoded as sRGB.
struct RgbTriple {
    double red, green, blue;
};

/// A colour as a point: the squared distance of two points measures how
/// different they look.
struct LabPoint {
    double L;        ///< lightness, 0 for black, 100 for white
    double a;        ///< green to red
    double b;        ///< blue to yellow
    double nearest;  ///< squared distance to the nearest colour taken so far
};

/// What `nearest` starts with: far above all squared distances of colours, which
/// stay below 100,000.
inline constexpr double NothingNear = 1000000000000000.0;

/// Undoes the sRGB companding of one channel; in percent.
double linearPercent(double channel);

/// The point of a colour with the given linear channels, in percent.
LabPoint linearToLab(StandardIlluminant const& light, Triple const& linear);

/// Converts the first `count` colours, in their order. The illuminant is D50
/// where that word is selected, and D65 otherwise. Nothing is limited; a
/// component that is NaN gives a point of NaNs.
///
/// Threads: any; it keeps no state. Throws `std::length_error` for a negative
/// count.
std::vector<LabPoint> rgbToLab(Orlo::Enum const& illuminant, int const& count,
                               std::vector<RgbTriple> const& rgb);

}  // namespace prism
