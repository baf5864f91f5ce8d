/// A plug-in under its own name, for hosts that have another one already.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"

using namespace Orlo;

namespace {

class Second : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 2; }
        rgba_float_t getColor(double) const override {
            return {0, static_cast<float>(green), 0, 1};
        }
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        double green = 0;
    };

    Second(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override {
        return prism::rewrite<Ramp>(
            *this, request, [this](auto& output, Ramp& map) { output.read(green, map.green); });
    }

private:
    TypedSlot<double> green{this, "green", 0.25, 0};
};

VSource<Second, ColormapPtr> creator(VCreatorProperties(NameIs("Second"), CategoryIs("Colormaps")),
                                     0, nullptr, false, InterfaceToken);

bool const valueTypes = registerValueTypes<double>();

}  // namespace
