/// Heights and depths in twenty hard bands.
/// Its map is replaced.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/hypsometricHelp.hpp"
#include "prism/tinctures/science/tableRule.hpp"

using namespace Orlo;
using namespace prism;

namespace {

/// Ten water tints, the deepest first, then ten land tints, the highest last.
/// Alpha is 0 throughout.
constexpr ColorTable<20> HypsometricTints{{
    {0.1, 0.1, 0.1, 0}, {0.2, 0, 0.3, 0},    {0.1, 0, 0.65, 0},  {0, 0, 0.85, 0},
    {0, 0.25, 0.9, 0},  {0, 0.5, 1, 0},      {0, 0.65, 1, 0},    {0, 0.85, 0.9, 0},
    {0, 1, 0.9, 0},     {0.7, 1, 1, 0},      {0.2, 0.5, 0, 0},   {0, 0.7, 0, 0},
    {0, 1, 0, 0},       {0.7, 1, 0, 0},      {1, 1, 0, 0},       {1, 0.75, 0, 0},
    {0.9, 0.5, 0, 0},   {0.6, 0.15, 0.1, 0}, {0.5, 0.5, 0.5, 0}, {0.8, 0.8, 0.9, 0},
}};

/// With `Land` 0, the values 0 to 1 run over all tints. With `Land` 1 they run
/// over the land tints alone, and the values -1 to 0 over the water tints.
template <int Land>
class ColorRamp_Bathymetry : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        explicit Ramp(bool inverted) : inverse(inverted) {}

        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 20; }
        rgba_float_t getColor(double value) const override;
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        bool const inverse;
    };

    ColorRamp_Bathymetry(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    /// A changed flag gives a new map; a published one never changes.
    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        FlagList flags;
        output.read(options, flags);
        if (output.isEmpty() || output.hasChanged(options.slot())) {
            bool known = false;
            output.hold(new Ramp(flags("inverse", known)));
        }
        if (output.as<Ramp>() != nullptr)
            output.refresh();
        return output.publish();
    }

    std::string help(HelpType type) const override { return hypsometricHelp(type); }

private:
    TypedSlot<FlagList> options{this, "options", FlagList("-inverse", ' '), 1};
};

template <>
rgba_float_t ColorRamp_Bathymetry<0>::Ramp::getColor(double value) const {
    return tableRow(HypsometricTints, inverse ? 1.0 - value : value);
}

/// Bands of width 0.1 with the coast exactly at 0. Written with 2 - value, as
/// (1 - value) + 1 would round differently.
template <>
rgba_float_t ColorRamp_Bathymetry<1>::Ramp::getColor(double value) const {
    return rowAt(HypsometricTints, (inverse ? 2.0 - value : value + 1.0) * 10.0);
}

VSource<ColorRamp_Bathymetry<0>, ColormapPtr> bathymetricColors(
    VCreatorProperties(TodoIs("todo"),
                       DescriptionIs("Provides a color map with hypsometric tints."),
                       TagsAre("General;Tidewatch"), DateIs("Mar 22 2024"),
                       NameIs("BathymetricColors"), SourceIs("prism/tinctures/Hypsometric"),
                       CategoryIs("Colormaps")),
    0, new VCreationPreferences("hypsometric"), false, InterfaceToken);

VSource<ColorRamp_Bathymetry<0>, ColormapPtr> hypsometric(
    VCreatorProperties(TodoIs("todo"),
                       DescriptionIs("Provides a color map with hypsometric tints."),
                       TagsAre("General"), DateIs("Mar 22 2024"), NameIs("Hypsometric"),
                       SourceIs("prism/tinctures/Hypsometric"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("hypsometric"), false, InterfaceToken);

VSource<ColorRamp_Bathymetry<0>, ColormapPtr> topoBathy(
    VCreatorProperties(TodoIs("todo"),
                       DescriptionIs("Provides a color map with bathymetric and hypsometric tints"),
                       TagsAre("General;Tidewatch"), DateIs("Mar 22 2024"), NameIs("TopoBathy"),
                       SourceIs("prism/tinctures/Hypsometric"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("hypsometric"), false, InterfaceToken);

VSource<ColorRamp_Bathymetry<1>, ColormapPtr> topographic(
    VCreatorProperties(TodoIs("todo"),
                       DescriptionIs("Provides a color map with only hypsometric tints"),
                       TagsAre("General;Tidewatch"), DateIs("Mar 22 2024"), NameIs("Topographic"),
                       SourceIs("prism/tinctures/Hypsometric"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("hypsometric", "topographic"), false, InterfaceToken);

bool const valueTypes = registerValueTypes<FlagList>();

}  // namespace
