/// Colours that are as far apart as possible in a perceptual colour space.
/// Its map is replaced.
#include <cmath>

#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/RecentTables.hpp"

using namespace Orlo;
using namespace prism;

namespace {

/// Of all objects. It goes behind the creator and all that this has made.
constinit RecentTables recentTables;

/// The colours that a request selects. Each update asks for them, most often for the
/// very same ones.
std::vector<rgba_float_t> selectedColors(DistinctRequest const& request) {
    if (auto known = recentTables.find(request))
        return *std::move(known);
    std::vector<rgba_float_t> colors = distinctColors(request);
    recentTables.keep(request, colors);
    return colors;
}

class ColorRampDistinguish : public Tincture {
public:
    /// A table in the order of picking. It never changes.
    class Ramp : public Colormap {
    public:
        explicit Ramp(DistinctRequest const& request)
            : NumberOfColors(request.count), Colors(selectedColors(request)) {}

        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return NumberOfColors; }
        rgba_float_t getColor(double value) const override;
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        Enum Illuminant;             // never set and never read
        rgba_float_t Background[2];  // likewise
        int const NumberOfColors;
        std::vector<rgba_float_t> Colors;
    };

    ColorRampDistinguish(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {
        numberOfColors.setProperty("min", 1);
        numberOfColors.setProperty("max", 1000);
    }

    /// Every update makes a new map in the place of whatever stands there, and
    /// does not touch it.
    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        DistinctRequest wanted{};
        output.read(numberOfColors, wanted.count);
        output.read(rgbSteps, wanted.steps);
        output.read(illuminant, wanted.illuminant);
        output.read(background1, wanted.background1);
        output.read(background2, wanted.background2);
        output.hold(new Ramp(wanted));
        output.drawIcon();
        return output.publish();
    }

    std::string help(HelpType type) const override;

private:
    TypedSlot<int> numberOfColors{this, "Number of Colors", 10, 0};
    TypedSlot<int> rgbSteps{this, "RGB Steps", 30, 1};
    TypedSlot<Enum> illuminant{this, "Standard Illumiant", Enum().addCase("D50").addCase("D65"), 1};
    TypedSlot<rgba_float_t> background1{this, "Background Color 1", {0, 0, 0, 1}, 0};
    TypedSlot<rgba_float_t> background2{this, "Background Color 2", {0, 0, 0, 1}, 0};
};

/// Rounds half away from zero, exactly, without a carry from just below a half.
double rounded(double x) {
    if (std::fabs(x) < 4503599627370496.0)
        return std::copysign(std::trunc(std::fabs(x) + 0.49999999999999994), x);
    return x;
}

/// The nearest entry; the scale is the number of entries, and the last one takes
/// all that is no index: what is greater, negative, or NaN.
rgba_float_t ColorRampDistinguish::Ramp::getColor(double value) const {
    if (Colors.empty())
        return {};
    double const entry = rounded(value * NumberOfColors);
    bool const isIndex = entry >= 0.0 && entry < NumberOfColors;
    return isIndex ? Colors[static_cast<std::size_t>(entry)] : Colors.back();
}

std::string ColorRampDistinguish::help(HelpType type) const {
    if (type != LongHelp)
        return "Colormap with a set of colors which are distinguishable by reference to the Lab "
               "color space, which more closely matches human color perception than RGB";
    return " This is a colormap with a set of colors which are distinguishable by reference to the "
           "Lab color space, which more closely matches human color perception than RGB. See as "
           "matlab implementation   'Generate maximally perceptually distinct colors' by Odo "
           "Renn. Reference: <A HREF=\"https://en.wikipedia.org/wiki/Color_difference\">Generate "
           "maximally perceptually-distinct colors</A>";
}

VSource<ColorRampDistinguish, ColormapPtr> creator(
    VCreatorProperties(TodoIs("todo"),
                       DescriptionIs("Colormap with neighboring colors being maximal distinct."),
                       TagsAre("General;Tidewatch"), DateIs("Mar 22 2024"),
                       NameIs("MaxDistinguishableColors"),
                       SourceIs("prism/tinctures/DistinguishColormap"), CategoryIs("Colormaps")),
    -1000, new VCreationPreferences("default"), false, InterfaceToken);

bool const valueTypes = registerValueTypes<int, Enum, rgba_float_t>();

}  // namespace
