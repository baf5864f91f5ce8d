/// Three lines on black: white in the centre, red below and blue above it.
/// Its map is rewritten in place.
#include <cmath>

#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/arithmetic.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class MyColormap : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 256; }
        rgba_float_t getColor(double t) const override;
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        double deviation = 0.5;
        double lineintensity = 1.0;
        double intensity = 1.0;
        double linewidth = 2.0;

    private:
        double redTent(double t) const;
        double blueTent(double t) const;
    };

    MyColormap(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override {
        return rewrite<Ramp>(*this, request, [this](auto& output, auto& map) {
            output.read(deviation, map.deviation);
            output.read(lineintensity, map.lineintensity);
            output.read(intensity, map.intensity);
            output.read(linewidth, map.linewidth);
        });
    }

    bool must_update(VRequest const& request, double) const override {
        return hasNoMap(*this, request);
    }

private:
    TypedSlot<double> deviation{this, "deviation", 0.5, 0};
    TypedSlot<double> lineintensity{this, "lineintensity", 1.0, 0};
    TypedSlot<double> intensity{this, "intensity", 1.0, 0};
    TypedSlot<double> linewidth{this, "linewidth", 2.0, 0};
};

/// Each line is a power of a tent: the greater the exponent, the sharper. A sum
/// of two lines may go beyond 1. Both ends, from 254/255 on, are black.
rgba_float_t MyColormap::Ramp::getColor(double t) const {
    if (t <= 0.0 || t >= 0.996078431372549)
        return {0, 0, 0, 1};
    double const p = std::exp(5.0 - 6.0 * linewidth);
    double const red = std::pow(redTent(t), p) * lineintensity;
    double const blue = lineintensity * std::pow(blueTent(t), p);
    double const centreTent = t <= 0.5 ? t + t : (t - 1.0) * -2.0;
    double const white = intensity * std::pow(centreTent, p);
    return {red + white, white, blue + white, 1};
}

/// Peaks at deviation/2, in the lower half.
double MyColormap::Ramp::redTent(double t) const {
    if (t > 0.5)
        return 0.0;
    double const s = t + t;
    bool const rises = deviation > 1.0 || deviation >= s;
    return clamped(rises ? s / deviation : (s - 1.0) / (deviation - 1.0));
}

/// Peaks at 1 - deviation/2, in the upper half; not the mirror image of the
/// other tent's test.
double MyColormap::Ramp::blueTent(double t) const {
    double const u = (t - 0.5) + (t - 0.5);
    double const o = 1.0 - deviation;
    bool const rises = deviation < 0.0 || o >= u;
    return clamped(rises ? u / o : (1.0 - u) / deviation);
}

VSource<MyColormap, ColormapPtr> creator(
    VCreatorProperties(TodoIs("todo"), DescriptionIs(""), TagsAre("General;Tidewatch"),
                       DateIs("Mar 22 2024"), NameIs("DopplerMap"),
                       SourceIs("prism/tinctures/DopplerColors"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("doppler"), false, InterfaceToken);

bool const valueTypes = registerValueTypes<double>();

}  // namespace
