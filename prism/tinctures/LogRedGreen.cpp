/// The bent two-colour gradient, taken at an exponential of the value.
/// Its map is rewritten in place.
#include <cmath>

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

    /// Only a new map is published. There is no icon, and the map, also another
    /// object's, gets the age of the inputs instead of a touch.
    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        if (output.isEmpty())
            output.publishNow(new Ramp);
        if (auto* const map = output.as<Ramp>()) {
            output.read(startcolor, map->startcolor);
            output.read(endcolor, map->endcolor);
            output.read(blend, map->blend);
            output.read(multiplier, map->multiplier);
            output.dropCache();
        }
        output.raiseAge();
        return true;
    }

    bool must_update(VRequest const& request, double) const override {
        return hasNoMap(*this, request);
    }

private:
    /// The second default where the object was made with the word "ort".
    rgba_float_t either(rgba_float_t const& first, rgba_float_t const& second) const {
        return preferences() && preferences()->contains("ort") ? second : first;
    }

    TypedSlot<rgba_float_t> startcolor{
        this, "startcolor", either({1, 0, 0, 1}, {0.99215686, 0.8156863, 0.13725491, 1}), 0};
    TypedSlot<rgba_float_t> endcolor{
        this, "endcolor", either({0, 1, 0, 1}, {0.27450982, 0.11372549, 0.4862745, 1}), 0};
    TypedSlot<double> blend{this, "blend", 0.0, 1};
    TypedSlot<double> multiplier{this, "multiplier", 0.5, 0};
};

/// The exponential runs from 1 to about 148 and is not brought back to 0 to 1:
/// at the value 0 stands the end colour, and from there the results grow to
/// millions.
rgba_float_t MyColormap::Ramp::getColor(double value) const {
    double const t = std::exp(5.0 * clamped(value));
    double const gain = 1.0 + 4.0 * multiplier * t * (1.0 - t);
    double const bendGain = 1.0 + 4.0 * multiplier * blend * (1.0 - blend);
    return bend(startcolor, endcolor,
                {.start = (1.0 - t) * gain,
                 .end = (1.0 - blend) * bendGain * t * gain,
                 .complement = blend * bendGain * t * gain});
}

VSource<MyColormap, ColormapPtr> logRedGreen(
    VCreatorProperties(DateIs("Mar 22 2024"), NameIs("LogRedGreen"),
                       SourceIs("prism/tinctures/LogRedGreen"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("redgreen"), false, InterfaceToken);

VSource<MyColormap, ColormapPtr> ort(VCreatorProperties(DateIs("Mar 22 2024"), NameIs("Ort"),
                                                        SourceIs("prism/tinctures/LogRedGreen"),
                                                        CategoryIs("Colormaps")),
                                     0, new VCreationPreferences("ort"), false, InterfaceToken);

bool const valueTypes = registerValueTypes<rgba_float_t, double>();

}  // namespace
