/// A plug-in that writes to standard output wherever it can: at load, when an
/// object is made, at each update, in the lookup, and at unload.
#include <cstdio>
#include <iostream>
#include <limits>

#include "host/creators/VInitialization.hpp"
#include "host/creators/VSource.hpp"
#include "host/object/Tincture.hpp"
#include "host/values/TypedSlot.hpp"

using namespace Orlo;

namespace {

class Grey : public Colormap {
public:
    int getMin() const override { return 0; }
    int getMax() const override { return 1; }
    int getSize() const override { return 256; }
    rgba_float_t getColor(double value) const override {
        std::puts("talk of the lookup");
        float const grey = static_cast<float>(value);
        return {grey, grey, grey, 1.0F};
    }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }
};

class Talker : public Tincture {
public:
    Talker(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {
        std::cout << "talk of the constructor" << std::endl;
        words.setProperty("min", 1);
        words.setProperty("max", 9);
        loudness.setProperty("max", std::numeric_limits<double>::infinity());
    }

    bool update(VRequest& request, double) override {
        std::cout << "talk of the update\n";
        ValuePtr const value = valueInPool(*colormapOutput, request.pool(), true);
        WeakPtr<VTypedValueBase<ColormapPtr>, VValueBase> const output(value);
        ColormapPtr const map = new Grey;
        output->setValue(map);
        return true;
    }

private:
    TypedSlot<int> words{this, "words", 3, 2};
    TypedSlot<double> loudness{this, "a loudness", 0.5, 0};
};

struct Speaker {
    Speaker() { std::puts("talk of the load"); }
    ~Speaker() { std::puts("talk of the unload"); }
} const speaker;

VSource<Talker, ColormapPtr> talker(VCreatorProperties(NameIs("Talker"), CategoryIs("Colormaps"),
                                                       DescriptionIs("Says \"hello\".")),
                                    7, nullptr, false, InterfaceToken);

bool const valueTypes = registerValueTypes<int, double>();

}  // namespace

extern "C" TELM_EXPORT int TELM_API_2024_MAR_06__talking_plugin(VInitialization* host) {
    return host->IsCompatible(InterfaceToken);
}
