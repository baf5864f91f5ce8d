/// What all these plug-ins have: a map, and objects that publish it, which keep the
/// contract. Each source departs from them in one thing, or each of its entries in one.
#pragma once

#include <vector>

#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"

namespace {

using namespace Orlo;

/// Grey from black to white, above a level.
class Grey : public Colormap {
public:
    int getMin() const override { return 0; }
    int getMax() const override { return 1; }
    int getSize() const override { return 256; }
    rgba_float_t getColor(double value) const override {
        float const grey = value >= level ? static_cast<float>(value) : 0.0F;
        return {grey, grey, grey, 1};
    }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }

    double level = 0;
};

/// An object that publishes a map of the class.
template <class Map>
class Object : public Tincture {
public:
    Object(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override {
        prism::OutputMap output(*this, request);
        if (output.isEmpty())
            output.hold(new Map);
        if (auto* const map = output.as<Map>()) {
            output.read(level, map->level);
            output.refresh();
        }
        return output.publish();
    }

protected:
    TypedSlot<double> level{this, "level", 0.0, 0};
};

/// An entry of that name; the key may be anything.
template <class Class>
struct Entry : VSource<Class, ColormapPtr> {
    Entry(char const* folder, char const* name, char const* tags = "General")
        : VSource<Class, ColormapPtr>(
              VCreatorProperties(NameIs(name), CategoryIs(folder), TagsAre(tags)), 0, nullptr,
              false, InterfaceToken) {}
};

bool const valueTypes = registerValueTypes<double>();

}  // namespace

/// The entry, for objects of a class.
#define PRISM_ENTRY(Class)                                                                       \
    namespace {                                                                                  \
    VSource<Class, ColormapPtr> entry(VCreatorProperties(DescriptionIs("Grey."), NameIs("Grey"), \
                                                         CategoryIs("Colormaps")),               \
                                      0, nullptr, false, InterfaceToken);                        \
    }
