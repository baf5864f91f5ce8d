#include "host/colormap/Colormap.hpp"

#include "runtime/vellum/quantize.hpp"

namespace Orlo {

namespace {

/// The scalar of entry `i`.
double scalarOf(Colormap const& map, int i) {
    double const min = map.getMin();
    return min + (map.getMax() - min) * i / map.getSize();
}

}  // namespace

Colormap::Colormap() = default;
Colormap::~Colormap() = default;

rgb8_t Colormap::getColorRGB(int i) const {
    return quantizedColor<rgb8_t>(getColor(scalarOf(*this, i)));
}
rgba8_t Colormap::getColorRGBA(int i) const {
    return quantizedColor<rgba8_t>(getColor(scalarOf(*this, i)));
}
rgb16_t Colormap::getColorRGB16(int i) const {
    return quantizedColor<rgb16_t>(getColor(scalarOf(*this, i)));
}
rgba16_t Colormap::getColorRGBA16(int i) const {
    return quantizedColor<rgba16_t>(getColor(scalarOf(*this, i)));
}
rgba16_t Colormap::getColor16(double value) const {
    return quantizedColor<rgba16_t>(getColor(value));
}

}  // namespace Orlo
