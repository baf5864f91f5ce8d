/// Lookups as text.
#pragma once

#include <string>

#include "host/colormap/Colormap.hpp"

namespace workbench {

/// The shortest text that reads back to the same number; `nan` for any NaN.
std::string shortest(double value);
std::string shortest(float value);

/// The colour of a value: `value red green blue alpha`, each in its shortest form.
/// [reader]
std::string lookupLine(Orlo::Colormap const& map, double value);

}  // namespace workbench
