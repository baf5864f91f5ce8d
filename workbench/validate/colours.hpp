/// Colours of maps, compared bit by bit.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/colormap/Colormap.hpp"

namespace workbench::validate {

/// The scalars i / (count - 1), from 0 to 1.
std::vector<double> scalarsTo(int count);

/// Scalars that no data should have and that some have: NaN, infinities, the largest
/// and the smallest numbers, those beside 0 and 1, and those far outside.
std::vector<double> specialScalars();

/// How a scalar is written in a message.
std::string nameOf(double scalar);

using Colours = std::vector<Tessar::rgba_float_t>;

Colours coloursOf(Orlo::Colormap const& map, std::vector<double> const& scalars);

/// Whether two colours are the same bits; all NaNs are the same.
bool isSame(Tessar::rgba_float_t const& a, Tessar::rgba_float_t const& b);

/// "(1,0.5,0,1)"
std::string nameOf(Tessar::rgba_float_t const& colour);

/// The first scalar where the map is not the colour that it was, with both colours;
/// empty if all are the same.
std::string difference(Orlo::Colormap const& map, std::vector<double> const& scalars,
                       Colours const& before);

}  // namespace workbench::validate
