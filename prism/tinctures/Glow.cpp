/// From black to white through a chosen colour at a chosen position.
/// Its map is rewritten in place.
#include <cmath>

#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"

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

        rgba_float_t glow;
        double center = 0.0;
        bool inverted = false;

    private:
        float channel(float component, double v) const;
    };

    MyColormap(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    /// The last steps are for every map, also another object's, and the touch
    /// comes after the publishing.
    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        if (output.isEmpty())
            output.hold(new Ramp);
        if (auto* const map = output.as<Ramp>()) {
            output.read(glow, map->glow);
            output.read(center, map->center);
            Enum choice;
            output.read(inverted, choice);
            map->inverted = choice.Equal("yes");
            output.dropCache();
        }
        output.raiseAge();
        output.raiseAge(inverted.slot());
        output.drawIcon();
        output.publish();
        output.touch();
        return true;
    }

    bool must_update(VRequest const& request, double) const override {
        return hasNoMap(*this, request);
    }

private:
    TypedSlot<rgba_float_t> glow{this, "glow", {1, 0.6, 0, 1}, 0};
    TypedSlot<double> center{this, "center", 0.5, 0};
    TypedSlot<Enum> inverted{this, "inverted", Enum().addCase("no").addCase("yes"), 0};
};

/// Alpha is that of the glow for every value.
rgba_float_t MyColormap::Ramp::getColor(double value) const {
    double const v = inverted ? 1.0 - value : value;
    return {channel(glow[0], v), channel(glow[1], v), channel(glow[2], v), glow[3]};
}

/// The parabola through (0, 0), (center, component) and (1, 1), not clamped. There
/// is none through a centre at 0, which gives grey, as NaN does, or at 1, which
/// gives black.
float MyColormap::Ramp::channel(float component, double v) const {
    if (center == 0.0 || std::isnan(center))
        return static_cast<float>(v);
    if (center == 1.0)
        return 0.0F;
    double const i = 1.0 / center;
    double const j = 1.0 / (1.0 - center);
    double const x = (double{component} * i - center) * j;
    return static_cast<float>(((1.0 - x) * v + x) * v);
}

VSource<MyColormap, ColormapPtr> creator(VCreatorProperties(DateIs("Mar 22 2024"), NameIs("Glow"),
                                                            SourceIs("prism/tinctures/Glow"),
                                                            CategoryIs("Colormaps")),
                                         2000, new VCreationPreferences("glow"), false,
                                         InterfaceToken);

bool const valueTypes = registerValueTypes<rgba_float_t, double, Enum>();

}  // namespace
