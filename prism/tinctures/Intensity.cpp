/// A straight blend of two colours.
/// Its map is rewritten in place.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/arithmetic.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class IntensityColormap : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 256; }
        /// Beyond 0 to 1 the line through the two colours goes on.
        rgba_float_t getColor(double value) const override {
            return blend(startColor, 1.0 - value, endColor, value);
        }
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        rgba_float_t startColor;
        rgba_float_t endColor;
    };

    IntensityColormap(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override {
        return rewrite<Ramp>(*this, request, [this](auto& output, auto& map) {
            output.read(startcolor, map.startColor);
            output.read(endcolor, map.endColor);
        });
    }

    bool must_update(VRequest const& request, double) const override {
        return hasNoMap(*this, request);
    }

private:
    TypedSlot<rgba_float_t> startcolor{this, "startcolor", {0, 0, 0, 1}, 0};
    TypedSlot<rgba_float_t> endcolor{this, "endcolor", {1, 1, 1, 1}, 0};
};

VSource<IntensityColormap, ColormapPtr> creator(
    VCreatorProperties(TodoIs("todo"), DescriptionIs("Provides a greyscale color map."),
                       TagsAre("General"), DateIs("Mar 22 2024"), NameIs("Intensitymap"),
                       SourceIs("prism/tinctures/Intensity"), CategoryIs("Colormaps")),
    2000, nullptr, false, InterfaceToken);

bool const valueTypes = registerValueTypes<rgba_float_t>();

}  // namespace
