/// The entries that the library must have.
#pragma once

#include <array>
#include <string_view>

namespace tests {

/// Their keys in the order of the catalogue: sources last to first, and within a
/// source in the order written there. Entries beyond these may stand among them.
inline constexpr std::array<std::string_view, 21> requiredEntries{
    "Colormaps/ZeroInfinity",
    "Colormaps/Zebramap",
    "Colormaps/RedGreen",
    "Colormaps/Muv",
    "Colormaps/Colorramp",
    "Colormaps/Monochrome",
    "Colormaps/LogRedGreen",
    "Colormaps/Ort",
    "Colormaps/Intensitymap",
    "Colormaps/BathymetricColors",
    "Colormaps/Hypsometric",
    "Colormaps/TopoBathy",
    "Colormaps/Topographic",
    "Colormaps/HypoxiaLegend",
    "Colormaps/Hypoxia",
    "Colormaps/Glow",
    "Colormaps/DopplerMap",
    "Colormaps/MaxDistinguishableColors",
    "Colormaps/BigColorMap",
    "Colormaps/TulLassColorScheme",
    "Colormaps/TulElbeColorScheme",
};

}  // namespace tests
