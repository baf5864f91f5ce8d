/// Marks the zero of a signed quantity between two gradients.
/// Its map is rewritten in place.
#include <cmath>

#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/arithmetic.hpp"
#include "prism/tinctures/science/timesTwoOverPi.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class MyColormap : public Tincture {
public:
    class MyColorizer : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 256; }
        rgba_float_t getColor(double value) const override;
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        rgba_float_t startpositive;
        rgba_float_t endpositive;
        rgba_float_t startnegative;
        rgba_float_t endnegative;
        rgba_float_t zero;
        double epsilon = 0.0;
        Range range{0.0, 1.0};
    };

    MyColormap(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    /// Only a new map is published. There is no icon, and the map, also another
    /// object's, gets the age of the inputs instead of a touch.
    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        if (output.isEmpty())
            output.publishNow(new MyColorizer);
        if (auto* const map = output.as<MyColorizer>()) {
            output.read(startpositive, map->startpositive);
            output.read(endpositive, map->endpositive);
            output.read(startnegative, map->startnegative);
            output.read(endnegative, map->endnegative);
            output.read(zero, map->zero);
            output.read(epsilon, map->epsilon);
            output.read(range, map->range);
            output.dropCache();
        }
        output.raiseAge();
        output.raiseAge(range.slot());
        return true;
    }

    bool must_update(VRequest const& request, double) const override {
        return hasNoMap(*this, request);
    }

private:
    TypedSlot<rgba_float_t> startpositive{this, "startpositive", {0.5, 1, 0, 1}, 0};
    TypedSlot<rgba_float_t> endpositive{this, "endpositive", {0, 0.4, 0.5, 1}, 0};
    TypedSlot<rgba_float_t> startnegative{this, "startnegative", {1, 0, 0, 1}, 0};
    TypedSlot<rgba_float_t> endnegative{this, "endnegative", {1, 1, 0, 1}, 0};
    TypedSlot<rgba_float_t> zero{this, "zero", {1, 1, 1, 1}, 0};
    TypedSlot<Range> range{this, "range", Range(0.0, 1.0), 0};
    TypedSlot<double> epsilon{this, "epsilon", 0.0, 0};
};

/// The arc tangent squeezes the real line into -1 to 1. It chooses the branch and
/// nothing else: the gradients run over the lookup value itself. It changes no sign,
/// so that it is computed for a band only.
rgba_float_t MyColormap::MyColorizer::getColor(double value) const {
    double const v = (range.maximum - range.minimum) * value + range.minimum;
    if (epsilon > 0.0 && std::fabs(timesTwoOverPi(std::atan(v))) < epsilon)
        return zero;
    if (v < 0.0)
        return blend(startnegative, value + 1.0, endnegative, -value);
    return blend(startpositive, 1.0 - value, endpositive, value);
}

VSource<MyColormap, ColormapPtr> creator(
    VCreatorProperties(
        TodoIs("todo"),
        DescriptionIs(" A colormap that shows a strong depiction of the zero value."),
        TagsAre("General;Tidewatch"), DateIs("Mar 22 2024"), NameIs("ZeroInfinity"),
        SourceIs("prism/tinctures/ZeroInfinity"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("zero"), false, InterfaceToken);

bool const valueTypes = registerValueTypes<rgba_float_t, Range, double>();

}  // namespace
