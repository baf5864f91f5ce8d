/// Maps as rows of evenly spaced colours.
#pragma once

#include "workbench/export/Model.hpp"

namespace workbench {

/// The colours at the middles of so many equal parts of the range.
std::vector<Orlo::rgba_float_t> evenColors(Model const& model, std::size_t count);

/// How many equal parts show each edge in its place and each line within the error;
/// `maxCount` if even that does not suffice.
std::size_t evenCount(Model const& model, std::size_t maxCount);

/// How far such a row is off, at most, between the edges.
double evenError(Model const& model, std::size_t count);

}  // namespace workbench
