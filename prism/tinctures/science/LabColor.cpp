#include "prism/tinctures/science/LabColor.hpp"

#include <cmath>

#include "prism/tinctures/science/vectorSize.hpp"

namespace prism {

namespace {

/// The cube-root law, with the rounded textbook constants.
double lightnessOf(double component, double threshold, double inverseWhite) {
    double const t = component * inverseWhite;
    return component > threshold ? std::cbrt(t) : 7.787 * t + 0.13793103448275862;
}

}  // namespace

double linearPercent(double channel) {
    double const linear = channel > 0.04045 ? std::pow((channel + 0.055) * 0.9478672985781991, 2.4)
                                            : channel * 0.07739938080495357;
    return linear * 100.0;
}

LabPoint linearToLab(StandardIlluminant const& light, Triple const& linear) {
    auto const [red, green, blue] = linear;
    Triple f;
    for (std::size_t i = 0; i < f.size(); ++i) {
        Triple const& row = light.matrix[i];
        double const xyz = row[0] * red + row[1] * green + row[2] * blue;
        f[i] = lightnessOf(xyz, light.threshold[i], light.inverseWhite[i]);
    }
    return {.L = 116.0 * f[1] - 16.0,
            .a = (f[0] - f[1]) * 500.0,
            .b = (f[1] - f[2]) * 200.0,
            .nearest = NothingNear};
}

std::vector<LabPoint> rgbToLab(Orlo::Enum const& illuminant, int const& count,
                               std::vector<RgbTriple> const& rgb) {
    std::vector<LabPoint> points(vectorSize(count));
    if (points.empty())
        return points;
    StandardIlluminant const& light = selected(illuminant);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i] = linearToLab(light, {linearPercent(rgb[i].red), linearPercent(rgb[i].green),
                                        linearPercent(rgb[i].blue)});
    return points;
}

}  // namespace prism
