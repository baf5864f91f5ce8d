#include "host/colormap/Colormap.hpp"

#include <cmath>
#include <limits>

namespace Orlo {

namespace {

/// A component as an integer: limited to 0..1, NaN as 0, rounded to nearest.
template <class Integer>
Integer quantised(float component) {
    constexpr double most = std::numeric_limits<Integer>::max();
    double const limited = component >= 1.0F ? 1.0 : component > 0.0F ? double{component} : 0.0;
    return static_cast<Integer>(limited * most + 0.5);
}

template <class Integers>
Integers quantised(Tessar::rgba_float_t const& colour) {
    Integers result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = quantised<typename Integers::value_type>(colour[i]);
    return result;
}

/// The scalar of entry `i`.
double scalarOf(Colormap const& map, int i) {
    double const least = map.getMin();
    return least + (map.getMax() - least) * i / map.getSize();
}

}  // namespace

Colormap::Colormap() = default;
Colormap::~Colormap() = default;

rgb8_t Colormap::getColorRGB(int i) const {
    return quantised<rgb8_t>(getColor(scalarOf(*this, i)));
}
rgba8_t Colormap::getColorRGBA(int i) const {
    return quantised<rgba8_t>(getColor(scalarOf(*this, i)));
}
rgb16_t Colormap::getColorRGB16(int i) const {
    return quantised<rgb16_t>(getColor(scalarOf(*this, i)));
}
rgba16_t Colormap::getColorRGBA16(int i) const {
    return quantised<rgba16_t>(getColor(scalarOf(*this, i)));
}
rgba16_t Colormap::getColor16(double value) const {
    return quantised<rgba16_t>(getColor(value));
}

}  // namespace Orlo
