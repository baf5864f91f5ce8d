/// Hues round the colour circle, with brightness and saturation falling off.
/// Its map is rewritten in place.
#include <cmath>

#include "host/creators/VSource.hpp"
#include "host/object/TimeDependent.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/tableRule.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class ColorRamp : public Tincture, public TimeDependent {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return steps; }
        rgba_float_t getColor(double value) const override;
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        double color = 0.0;
        double saturator = 0.3;
        double purity = 0.0;     // the update that makes the map writes it
        double exp_scale = 0.0;  // likewise
        double shift = 0.0;      // likewise
        int steps = 256;
    };

    ColorRamp(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap"),
          TimeDependent(new VCreationPreferences("local"), VTime(0.0, 0.0, 1.0, 0.0, "", "", ""),
                        "time", "timescale") {
        exp_scale.setProperty("min", 0.0);
        exp_scale.setProperty("max", 10.0);
        shift.setProperty("min", -10.0);
        shift.setProperty("max", 10.0);
        steps.setProperty("min", 2);
        steps.setProperty("max", 256);
    }

    /// The time is kept with the map, and no colour depends on it.
    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        if (output.isEmpty())
            output.hold(new Ramp);
        if (auto* const map = output.as<Ramp>()) {
            map->time = getTime(output.pool(), 0.0, Range(0.0, 1.0));
            output.read(color, map->color);
            output.read(exp_scale, map->exp_scale);
            output.read(shift, map->shift);
            output.read(steps, map->steps);
            output.read(saturator, map->saturator);
            output.read(purity, map->purity);
            output.refresh();
        }
        return output.publish();
    }

private:
    TypedSlot<double> color{this, "color", 0.07, 0};
    TypedSlot<double> saturator{this, "saturator", 0.3, 2};
    TypedSlot<double> purity{this, "purity", 1.0, 1};
    TypedSlot<double> exp_scale{this, "exp_scale", 1.0, 2};
    TypedSlot<double> shift{this, "shift", 0.0, 1};
    TypedSlot<int> steps{this, "steps", 256, 1};
};

/// The hue in degrees, brought into one turn. A remainder just below 0 can come
/// out as exactly 360.
float wrapped(float hue) {
    auto const rest = static_cast<float>(std::fmod(double{hue}, 360.0));
    return rest < 0.0F ? rest + 360.0F : rest;
}

/// The colour of a hue in degrees, a saturation S and a brightness V, none of
/// which is clamped.
rgba_float_t hueColor(float hue, float S, float V) {
    if (S == 0.0F || std::isnan(double{S}))
        return {V, V, V, 1};
    float const g = wrapped(hue) * 0.016666668F;
    int const sixth = truncated(std::floor(double{g}));
    float const f = g - static_cast<float>(sixth);
    float const P = (1.0F - S) * V;
    auto const Q = static_cast<float>((1.0 - double{f} * double{S}) * double{V});
    auto const T = static_cast<float>(((double{f} - 1.0) * double{S} + 1.0) * double{V});
    switch (sixth) {
    case 0:
        return {V, T, P, 1};
    case 1:
        return {Q, V, P, 1};
    case 2:
        return {P, V, T, 1};
    case 3:
        return {P, Q, V, 1};
    case 4:
        return {T, P, V, 1};
    default:  // the last sixth, a full turn, and a hue that is no number
        return {V, P, Q, 1};
    }
}

/// The falloff `y` dims with its square and greys with its first power; beyond 1
/// all is black. A "color" of 1 turns the circle ten times.
rgba_float_t ColorRamp::Ramp::getColor(double value) const {
    double const u = shift + std::pow(value, exp_scale);
    double const y = (saturator * color) * u;
    if (y > 1.0)
        return {0, 0, 0, 1};
    double const w = 1.0 - y;
    return hueColor(static_cast<float>((color * 3600.0) * u), static_cast<float>(w * purity),
                    static_cast<float>(w * w));
}

VSource<ColorRamp, ColormapPtr> creator(
    VCreatorProperties(DateIs("Mar 22 2024"), NameIs("Colorramp"), SourceIs("prism/tinctures/Ramp"),
                       CategoryIs("Colormaps")),
    2000, new VCreationPreferences("colorramp"), false, InterfaceToken);

bool const valueTypes = registerValueTypes<double, int>();

}  // namespace
