/// A two-colour gradient that swells in the middle and can bend, at its far
/// end, towards the complement of its start colour.
/// Its map is rewritten in place.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/arithmetic.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class MyColormap : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 256; }
        rgba_float_t getColor(double value) const override;
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        rgba_float_t startcolor;
        rgba_float_t endcolor;
        double blend = 0.0;
        double multiplier = 1.0;
    };

    MyColormap(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override {
        return rewrite<Ramp>(*this, request, [this](auto& output, auto& map) {
            output.read(startcolor, map.startcolor);
            output.read(endcolor, map.endcolor);
            output.read(blend, map.blend);
            output.read(multiplier, map.multiplier);
        });
    }

    bool must_update(VRequest const& request, double) const override {
        return hasNoMap(*this, request);
    }

private:
    /// The second default where the object was made with the word "muv".
    rgba_float_t either(rgba_float_t const& first, rgba_float_t const& second) const {
        return preferences() && preferences()->contains("muv") ? second : first;
    }

    TypedSlot<rgba_float_t> startcolor{
        this, "startcolor", either({1, 0, 0, 1}, {0.99215686, 0.8156863, 0.13725491, 1}), 0};
    TypedSlot<rgba_float_t> endcolor{
        this, "endcolor", either({0, 1, 0, 1}, {0.27450982, 0.11372549, 0.4862745, 1}), 0};
    TypedSlot<double> blend{this, "blend", 0.0, 1};
    TypedSlot<double> multiplier{this, "multiplier", 0.5, 0};
};

/// Both gains are parabolas over 0 to 1; the components go beyond 1 on purpose.
rgba_float_t MyColormap::Ramp::getColor(double value) const {
    double const c = clamped(value);
    double const gain = 1.0 + 4.0 * multiplier * c * (1.0 - c);
    double const bendGain = 1.0 + 4.0 * multiplier * blend * (1.0 - blend);
    return bend(startcolor, endcolor,
                {.start = (1.0 - c) * gain,
                 .end = c * (1.0 - blend) * bendGain * gain,
                 .complement = c * blend * bendGain * gain});
}

VSource<MyColormap, ColormapPtr> redGreen(
    VCreatorProperties(DateIs("Mar 22 2024"), NameIs("RedGreen"),
                       SourceIs("prism/tinctures/RedGreen"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("redgreen"), false, InterfaceToken);

VSource<MyColormap, ColormapPtr> muv(VCreatorProperties(DateIs("Mar 22 2024"), NameIs("Muv"),
                                                        SourceIs("prism/tinctures/RedGreen"),
                                                        CategoryIs("Colormaps")),
                                     0, new VCreationPreferences("muv"), false, InterfaceToken);

bool const valueTypes = registerValueTypes<rgba_float_t, double>();

}  // namespace
