/// A plug-in that the gallery does not know: texts that mean something in a
/// page, colours that are no numbers, and a key that is known elsewhere.
#include <cstdio>
#include <limits>

#include "host/creators/VInitialization.hpp"
#include "host/creators/VSource.hpp"
#include "host/object/Tincture.hpp"
#include "host/values/TypedSlot.hpp"

using namespace Orlo;

namespace {

/// No number in the lower half; in the upper half more than a screen shows.
class Broken : public Colormap {
public:
    int getMin() const override { return -2; }
    int getMax() const override { return 2; }
    int getSize() const override { return 3; }
    rgba_float_t getColor(double value) const override {
        float const nan = std::numeric_limits<float>::quiet_NaN();
        return value < 0 ? rgba_float_t{nan, nan, nan, nan} : rgba_float_t{4, -2, 0.5F, 1};
    }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }
};

class Odd : public Tincture {
public:
    Odd(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override {
        std::puts("talk of the update");
        ValuePtr const value = valueInPool(*colormapOutput, request.pool(), true);
        WeakPtr<VTypedValueBase<ColormapPtr>, VValueBase> const output(value);
        ColormapPtr const map = new Broken;
        output->setValue(map);
        return true;
    }

private:
    TypedSlot<double> odd{this, "<b>odd</b>", 0.5, 0};
};

VSource<Odd, ColormapPtr> known(
    VCreatorProperties(NameIs("Glow"), CategoryIs("Colormaps"),
                       DescriptionIs("</section><script>alert('x')</script> & \"more\"")),
    7, nullptr, false, InterfaceToken);
VSource<Odd, ColormapPtr> likeIt(VCreatorProperties(NameIs("<glow>"), CategoryIs("Colormaps")), 7,
                                 nullptr, false, InterfaceToken);
VSource<Odd, ColormapPtr> inCase(VCreatorProperties(NameIs("gLOW"), CategoryIs("Colormaps")), 7,
                                 nullptr, false, InterfaceToken);

bool const valueTypes = registerValueTypes<double>();

}  // namespace

extern "C" TELM_EXPORT int TELM_API_2024_MAR_06__odd_plugin(VInitialization* host) {
    return host->IsCompatible(InterfaceToken);
}
