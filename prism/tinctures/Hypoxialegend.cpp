/// The upper seven bands of the hypoxia tints, spread over the whole range.
/// Its map is made once.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/hypsometricHelp.hpp"
#include "prism/tinctures/science/tableRule.hpp"

using namespace Orlo;
using namespace prism;

namespace {

/// Alpha is 0 throughout.
constexpr ColorTable<7> HypoxiaLegendTints{{
    {0.2, 0.5, 0, 0},
    {0, 1, 0, 0},
    {1, 1, 0, 0},
    {0.9, 0.5, 0, 0},
    {0.6, 0.15, 0.1, 0},
    {0.8, 0.8, 0.9, 0},
    {0.5, 0, 0.5, 0},
}};

class ColorRamp_HypoxiaLegend : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 7; }
        rgba_float_t getColor(double value) const override {
            return tableRow(HypoxiaLegendTints, value);
        }
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }
    };

    ColorRamp_HypoxiaLegend(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override { return makeOnce<Ramp>(*this, request); }

    std::string help(HelpType type) const override { return hypsometricHelp(type); }
};

/// The description is that of the elevation tints.
VSource<ColorRamp_HypoxiaLegend, ColormapPtr> creator(
    VCreatorProperties(
        TodoIs("todo"),
        DescriptionIs("A colormap specifically useful for Bathymetric and topographic displays, "
                      "providing bluish colors for low values and green/yellow/brownish tones for "
                      "large values."),
        TagsAre("General"), DateIs("Mar 22 2024"), NameIs("HypoxiaLegend"),
        SourceIs("prism/tinctures/Hypoxialegend"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("hypoxia"), false, InterfaceToken);

}  // namespace
