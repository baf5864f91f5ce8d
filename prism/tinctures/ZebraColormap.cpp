/// Stripes: from one colour to another and back at once, again and again.
/// Its map is rewritten in place.
#include <cmath>

#include "host/creators/VSource.hpp"
#include "host/object/TimeDependent.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/arithmetic.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class ZebraColormap : public Tincture, public TimeDependent {
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
        double frequency = 1.0;
        double phase = 0.0;
    };

    ZebraColormap(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap"),
          TimeDependent(new VCreationPreferences("local"), VTime(0.0, 0.0, 0.0), "time",
                        "timescale") {}

    /// The time is kept with the map, and no colour depends on it.
    bool update(VRequest& request, double) override {
        return rewrite<Ramp>(*this, request, [this](auto& output, auto& map) {
            output.read(startcolor, map.startcolor);
            output.read(endcolor, map.endcolor);
            output.read(frequency, map.frequency);
            output.read(phase, map.phase);
            map.time = getTime(output.pool(), 0.0, Range(0.0, 1.0));
        });
    }

    bool must_update(VRequest const& request, double) const override {
        return hasNoMap(*this, request);
    }

private:
    TypedSlot<rgba_float_t> startcolor{this, "startcolor", {0, 0, 0, 1}, 1};
    TypedSlot<rgba_float_t> endcolor{this, "endcolor", {1, 1, 1, 1}, 1};
    TypedSlot<double> frequency{this, "frequency", 0.1, 0};
    TypedSlot<double> phase{this, "phase", 0.0, 1};
};

/// The "frequency" is the width of a stripe, and the phase counts stripes.
rgba_float_t ZebraColormap::Ramp::getColor(double value) const {
    double u = std::fmod(value - phase * frequency, frequency) / frequency;
    if (u < 0.0)
        u += 1.0;
    return blend(endcolor, u, startcolor, 1.0 - u);
}

VSource<ZebraColormap, ColormapPtr> creator("Colormaps/Zebramap", 2000, nullptr, false,
                                            InterfaceToken);

bool const valueTypes = registerValueTypes<rgba_float_t, double>();

}  // namespace
