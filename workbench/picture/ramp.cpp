#include "workbench/picture/ramp.hpp"

#include "workbench/picture/domain.hpp"

namespace workbench {

Samples sample(Orlo::Colormap const& map, std::size_t count) {
    Samples samples{domainOf(map), {}};
    samples.colors.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        samples.colors.push_back(map.getColor(
            samples.domain.at(static_cast<double>(i) + 0.5, static_cast<double>(count))));
    return samples;
}

Image rampOf(Samples const& samples, int height,
             std::function<Orlo::rgba_float_t(Orlo::rgba_float_t const&)> const& changed) {
    Image image(static_cast<int>(samples.colors.size()), height);
    int x = 0;
    for (Orlo::rgba_float_t const& color : samples.colors)
        image.fill(x++, 0, 1, height, opaque(changed ? changed(color) : color));
    return image;
}

}  // namespace workbench
