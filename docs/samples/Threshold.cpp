/// Black below a level, one colour from there on.
/// Its map is rewritten in place.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class Threshold : public Tincture {
public:
    /// What consumers hold: the numbers of the last update, and the lookup.
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 256; }
        rgba_float_t getColor(double value) const override {
            return value >= level ? color : rgba_float_t(0, 0, 0, 1);
        }
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        double level = 0.5;
        rgba_float_t color{1, 1, 1, 1};
    };

    Threshold(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        if (output.isEmpty())
            output.hold(new Ramp);
        if (auto* const map = output.as<Ramp>()) {
            output.read(level, map->level);
            output.read(color, map->color);
            output.refresh();
        }
        return output.publish();
    }

private:
    TypedSlot<double> level{this, "level", 0.5, 0};
    TypedSlot<rgba_float_t> color{this, "color", rgba_float_t(1, 1, 1, 1), 0};
};

VSource<Threshold, ColormapPtr> creator(
    VCreatorProperties(DescriptionIs("Black below a level, one colour from there on."),
                       NameIs("Threshold"), CategoryIs("Colormaps")),
    0, nullptr, false, InterfaceToken);

bool const valueTypes = registerValueTypes<double, rgba_float_t>();

}  // namespace
