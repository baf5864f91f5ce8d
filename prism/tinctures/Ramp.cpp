/// Hues round the colour circle, with brightness and saturation falling off.
/// Its map is rewritten in place.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

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
/// out as exactly 360. What is within a turn is its own remainder.
float wrapped(float hue) {
    float const rest =
        std::fabs(hue) < 360.0F ? hue : static_cast<float>(std::fmod(double{hue}, 360.0));
    return rest < 0.0F ? rest + 360.0F : rest;
}

/// The four numbers of which a colour is made, and which of them red, green and blue
/// are in each sixth of the circle. The last one takes a full turn as well, and a hue
/// that is no number. Looked up, since nobody foresees a branch on the hue.
enum Part : std::uint8_t { V, P, Q, T };
constexpr std::array<std::array<Part, 3>, 6> Sixths{
    {{V, T, P}, {Q, V, P}, {P, V, T}, {P, Q, V}, {T, P, V}, {V, P, Q}}};

/// The colour of a hue in degrees, a saturation and a brightness, none of which is
/// clamped.
rgba_float_t hueColor(float hue, float saturation, float brightness) {
    if (!(std::fabs(saturation) > 0.0F))  // none, or no number
        return {brightness, brightness, brightness, 1};
    float const g = wrapped(hue) * 0.016666668F;  // which is not negative
    int const sixth = truncated(double{g});
    double const f = double{g - static_cast<float>(sixth)}, S = double{saturation};
    std::array<float, 4> const parts{
        brightness, (1.0F - saturation) * brightness,
        static_cast<float>((1.0 - f * S) * double{brightness}),
        static_cast<float>(((f - 1.0) * S + 1.0) * double{brightness})};
    auto const& [red, green, blue] = Sixths[std::min(static_cast<unsigned>(sixth), 5U)];
    return {parts[red], parts[green], parts[blue], 1};
}

/// The power. An exponent of 1, the default, changes no number, and the power would
/// take as long as all else.
double power(double value, double exponent) {
    return exponent == 1.0 ? value : std::pow(value, exponent);
}

/// The falloff `y` dims with its square and greys with its first power; beyond 1
/// all is black. A "color" of 1 turns the circle ten times.
rgba_float_t ColorRamp::Ramp::getColor(double value) const {
    double const u = shift + power(value, exp_scale);
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
