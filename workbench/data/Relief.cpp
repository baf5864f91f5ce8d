#include "workbench/data/Relief.hpp"

#include <cmath>
#include <numbers>
#include <utility>

namespace workbench {

namespace {

constexpr int Max = 255;

/// The shade that GDAL gives to level ground.
double levelShade(Light const& light) {
    return 1.0 + 254.0 * std::sin(light.altitude * std::numbers::pi / 180.0);
}

double shadedComponent(double component, double shade, double level) {
    constexpr double MostWhite = 0.5;
    if (shade <= level)
        return component * shade / level;
    return component + (Max - component) * MostWhite * (shade - level) / (Max - level);
}

}  // namespace

Relief::Relief(std::unique_ptr<DataGrid> shades, Light const& light) : grid_(std::move(shades)) {
    double const level = levelShade(light);
    for (int shade = 0; shade <= Max; ++shade)
        for (int component = 0; component <= Max; ++component) {
            // GDAL rounds the shade of level ground, as all others
            bool const isLevel = shade == 0 || std::abs(shade - level) <= 0.5;
            double const exact = isLevel ? component : shadedComponent(component, shade, level);
            table_[static_cast<std::size_t>(shade)][static_cast<std::size_t>(component)] =
                static_cast<std::uint8_t>(exact + 0.5);
        }
}

}  // namespace workbench
