/// What a screen makes of a colour.
#pragma once

#include "host/colormap/rgba_float_t.hpp"

namespace workbench {

/// Amounts of the three lights of an sRGB screen, 0 to 1 each.
struct Light {
    double red, green, blue;
};

/// The light of a colour as a screen shows it: components clamped to 0 to 1,
/// NaN as 0, then freed of the sRGB companding. Alpha is ignored.
Light lightOf(Tessar::rgba_float_t const& color);

/// The opaque colour of a light; amounts are clamped to 0 to 1.
Tessar::rgba_float_t colorOf(Light const& light);

/// The lightness L* of CIE 1976, 0 for black to 100 for the white of the screen.
double lightness(Light const& light);

}  // namespace workbench
