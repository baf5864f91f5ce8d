/// How far the numbers of a map go.
#pragma once

#include "workbench/picture/ramp.hpp"

namespace workbench {

/// The least and the greatest of some numbers.
struct Span {
    double min;
    double max;
    bool allFinite;  ///< false if any was left out for being no finite number
};

/// Of the red, green and blue components of all samples; 0 and 0 if none is finite.
Span componentSpan(Samples const& samples);
/// Of the lightness of all samples, as a screen shows them.
Span lightnessSpan(Samples const& samples);

}  // namespace workbench
