/// Colours that are as far apart as possible in a perceptual colour space.
/// Its map is replaced.
#include <cmath>

#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/FarthestPoints.hpp"
#include "prism/tinctures/science/LabColor.hpp"
#include "prism/tinctures/science/vectorSize.hpp"

using namespace Orlo;
using namespace prism;

namespace {

class ColorRampDistinguish : public Tincture {
public:
    /// A table in the order of picking. It never changes.
    class Ramp : public Colormap {
    public:
        Ramp(int count, int steps, Enum const& illuminant, rgba_float_t background1,
             rgba_float_t background2);

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
        int count = 0, steps = 0;
        Enum light;
        rgba_float_t first, second;
        output.read(numberOfColors, count);
        output.read(rgbSteps, steps);
        output.read(illuminant, light);
        output.read(background1, first);
        output.read(background2, second);
        output.hold(new Ramp(count, steps, light, first, second));
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

/// What one map may hold and one grid may have: as many colours, and as many
/// steps, as there are with 8 bits. A grid of 256 steps takes half a gigabyte for a while.
constexpr int MostColors = 256 * 256 * 256;
constexpr int MostSteps = 256;

std::size_t sizeUpTo(int most, int count, char const* refusal) {
    std::size_t const size = vectorSize(count);
    if (count > most)
        throw std::length_error(refusal);
    return size;
}

RgbTriple widened(rgba_float_t const& color) {
    return {color.red(), color.green(), color.blue()};
}

ColorRampDistinguish::Ramp::Ramp(int count, int steps, Enum const& illuminant,
                                 rgba_float_t background1, rgba_float_t background2)
    : NumberOfColors(count),
      Colors(sizeUpTo(MostColors, count, "'Number of Colors' is greater than 16777216")) {
    sizeUpTo(MostSteps, steps, "'RGB Steps' is greater than 256");
    RgbGrid const grid(steps);
    std::vector<RgbTriple> const backgrounds{widened(background1), widened(background2)};
    auto const picks =
        FarthestPoints(illuminant, grid).pick(rgbToLab(illuminant, 2, backgrounds), Colors.size());
    for (std::size_t n = 0; n < picks.size(); ++n) {
        RgbTriple const pick = grid[picks[n]];
        Colors[n] = {pick.red, pick.green, pick.blue, 1};
    }
}

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
