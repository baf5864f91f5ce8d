#include "workbench/gallery/presets.hpp"

#include <map>

namespace workbench {

namespace {

using Presets = std::vector<Preset>;

Presets const UpsideDown{{"From the highest to the lowest", {"options=inverse"}}};

Presets const Blends{
    {"Without the gain in the middle", {"multiplier=0"}},
    {"To the complement of the start", {"multiplier=0", "blend=1"}},
    {"Half way there, with a strong gain", {"multiplier=1", "blend=0.5"}},
};

Presets const LogarithmicBlends{
    {"An exponential grey ramp",
     {"multiplier=0", "startcolor=(0,0,0,1)", "endcolor=(0.00674,0.00674,0.00674,1)"}},
    {"One channel grows, one falls",
     {"multiplier=0", "startcolor=(0,1,0.3,1)", "endcolor=(0.00674,0.99326,0.3,1)"}},
};

std::map<std::string, Presets> const& allPresets() {
    static std::map<std::string, Presets> const all{
        {"Colormaps/BathymetricColors", UpsideDown},
        {"Colormaps/Hypsometric", UpsideDown},
        {"Colormaps/TopoBathy", UpsideDown},
        {"Colormaps/Topographic", UpsideDown},
        {"Colormaps/BigColorMap",
         {{"The table stays whatever is set", {"red=0", "green=0", "blue=0"}},
          {"It keeps its 61 rows", {"steps=2"}}}},
        {"Colormaps/MaxDistinguishableColors",
         {{"More colours, the first ten as before", {"Number of Colors=30"}},
          {"Away from black and from white", {"Background Color 2=(1,1,1,1)"}},
          {"In the light of day", {"Standard Illumiant=D65"}}}},
        {"Colormaps/Colorramp",
         {{"Two turns of the hue", {"color=0.2"}},
          {"Pastel", {"purity=0.4"}},
          {"Dying away early", {"saturator=12", "exp_scale=2"}}}},
        {"Colormaps/DopplerMap",
         {{"Sharp lines", {"linewidth=0.5"}},
          {"Red and blue farther out", {"linewidth=0.5", "deviation=0.25"}},
          {"Without the white line", {"linewidth=0.5", "intensity=0"}}}},
        {"Colormaps/Glow",
         {{"An early glow", {"center=0.25"}},
          {"Another colour", {"glow=(0.1,0.5,1,1)"}},
          {"Inverted", {"inverted=yes"}}}},
        {"Colormaps/Intensitymap",
         {{"Between two colours", {"startcolor=(0.1,0.1,0.4,1)", "endcolor=(1,0.9,0.6,1)"}},
          {"Turned round", {"startcolor=(1,1,1,1)", "endcolor=(0,0,0,1)"}}}},
        {"Colormaps/RedGreen", Blends},
        {"Colormaps/Muv", Blends},
        {"Colormaps/LogRedGreen", LogarithmicBlends},
        {"Colormaps/Ort", LogarithmicBlends},
        {"Colormaps/Monochrome",
         {{"Another colour", {"color=(0.2,0.5,0.8,1)"}},
          {"Beyond what a screen shows", {"color=(2,0.6,-1,1)"}}}},
        {"Colormaps/Zebramap",
         {{"Wide stripes", {"frequency=0.4"}},
          {"Shifted by half a stripe", {"phase=0.5"}},
          {"Falling, in colour",
           {"frequency=-0.25", "startcolor=(0.1,0.2,0.5,1)", "endcolor=(1,0.8,0.3,1)"}}}},
        {"Colormaps/ZeroInfinity",
         {{"Zero in the middle", {"range=-1,1", "epsilon=0.05"}},
          {"A wide band of zero", {"range=-1,1", "epsilon=0.3"}},
          {"Far numbers, squeezed near 1", {"range=-100,100", "epsilon=0.95"}}}},
    };
    return all;
}

}  // namespace

std::vector<Preset> presetsFor(std::string const& key) {
    auto const found = allPresets().find(key);
    return found == allPresets().end() ? Presets() : found->second;
}

}  // namespace workbench
