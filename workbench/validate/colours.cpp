#include "workbench/validate/colours.hpp"

#include <bit>
#include <cmath>
#include <limits>

#include "host/values/VValueTrait.hpp"

namespace workbench::validate {

using Tessar::rgba_float_t;

std::vector<double> scalarsTo(int count) {
    std::vector<double> all;
    all.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        all.push_back(i / double(count - 1));
    return all;
}

std::vector<double> specialScalars() {
    using Limits = std::numeric_limits<double>;
    std::vector<double> all{Limits::quiet_NaN(), Limits::infinity(), 0.0, 0.5, 1.0};
    for (double const each :
         {Limits::max(), Limits::min(), Limits::denorm_min(), Limits::epsilon(), 1e-300, 1e-9, 2.0,
          3.5, 7.0, 255.0, 1e9, 2147483647.0, 2147483648.0, 4294967296.0, 9.3e18, 1e300})
        all.push_back(each);
    all.push_back(std::nextafter(0.5, 1.0));
    all.push_back(std::nextafter(1.0, 0.0));
    all.push_back(std::nextafter(1.0, 2.0));
    std::size_t const positive = all.size();
    for (std::size_t i = 0; i < positive; ++i)
        all.push_back(-all[i]);
    return all;
}

std::string nameOf(double scalar) {
    return Orlo::VValueTrait<double>::Text(scalar);
}

Colours coloursOf(Orlo::Colormap const& map, std::vector<double> const& scalars) {
    Colours all;
    all.reserve(scalars.size());
    for (double const scalar : scalars)
        all.push_back(map.getColor(scalar));
    return all;
}

bool isSame(rgba_float_t const& a, rgba_float_t const& b) {
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::bit_cast<std::uint32_t>(a[i]) != std::bit_cast<std::uint32_t>(b[i]) &&
            !(std::isnan(a[i]) && std::isnan(b[i])))
            return false;
    return true;
}

std::string nameOf(rgba_float_t const& colour) {
    return Orlo::VValueTrait<rgba_float_t>::Text(colour);
}

std::string difference(Orlo::Colormap const& map, std::vector<double> const& scalars,
                       Colours const& before) {
    for (std::size_t i = 0; i < scalars.size(); ++i) {
        rgba_float_t const now = map.getColor(scalars[i]);
        if (!isSame(now, before[i]))
            return "the scalar " + nameOf(scalars[i]) + " had the colour " + nameOf(before[i]) +
                   " and has " + nameOf(now);
    }
    return {};
}

}  // namespace workbench::validate
