#include "prism/tinctures/science/LabColor.hpp"

#include <array>
#include <cmath>

#include "prism/tinctures/science/vectorSize.hpp"

namespace prism {

using Triple = std::array<double, 3>;

/// From linear RGB in percent to XYZ under one standard illuminant. The
/// quotients are stored as reciprocals, rounded as they stand here.
struct LabConversion::Constants {
    std::array<Triple, 3> matrix;
    Triple inverseWhite;
    Triple threshold;  ///< 0.008856 of the white point
};

namespace {

constexpr LabConversion::Constants D50{
    {{{0.4360747, 0.3850649, 0.1430804},
      {0.2225045, 0.7168786, 0.0606169},
      {0.0139322, 0.0971045, 0.7141733}}},
    {0.010371077140071768, 0.01, 0.012118127506937628},
    {0.8539132319999999, 0.8855999999999999, 0.730805976},
};

/// The rows do not quite sum to the white point, so that white gets a small tint.
constexpr LabConversion::Constants D65{
    {{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}},
    {0.010521110608435826, 0.01, 0.009184170164304804},
    {0.8417362319999999, 0.8855999999999999, 0.9642678479999999},
};

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

LabConversion::LabConversion(Orlo::Enum const& illuminant)
    : light_(illuminant.Equal("D50") ? D50 : D65) {}

LabPoint LabConversion::operator()(double red, double green, double blue) const {
    Triple f;
    for (std::size_t i = 0; i < f.size(); ++i) {
        Triple const& row = light_.matrix[i];
        double const xyz = row[0] * red + row[1] * green + row[2] * blue;
        f[i] = lightnessOf(xyz, light_.threshold[i], light_.inverseWhite[i]);
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
    LabConversion const convert(illuminant);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i] = convert(linearPercent(rgb[i].red), linearPercent(rgb[i].green),
                            linearPercent(rgb[i].blue));
    return points;
}

}  // namespace prism
