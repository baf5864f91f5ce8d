/// One colour for every value.
/// Its map is rewritten in place.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class MyColormap : public Tincture {
public:
    class Generator : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 256; }
        rgba_float_t getColor(double) const override { return color; }
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        rgba_float_t color;
    };

    MyColormap(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override {
        return rewrite<Generator>(
            *this, request, [this](auto& output, auto& map) { output.read(color, map.color); });
    }

    bool must_update(VRequest const& request, double) const override {
        return hasNoMap(*this, request);
    }

private:
    TypedSlot<rgba_float_t> color{this, "color", {1, 0, 0, 1}, 0};
};

VSource<MyColormap, ColormapPtr> creator(VCreatorProperties(DateIs("Mar 22 2024"),
                                                            NameIs("Monochrome"),
                                                            SourceIs("prism/tinctures/Monochrome"),
                                                            CategoryIs("Colormaps")),
                                         2000, nullptr, false, InterfaceToken);

bool const valueTypes = registerValueTypes<rgba_float_t>();

}  // namespace
