/// Nine colours, each at a place of the user's choice.
/// Its map is replaced.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"

using namespace Orlo;
using namespace prism;

namespace {

constexpr std::size_t Count = 9;

/// The next whole number that a double can mean; 0 for what is no number.
int wholeNumber(double value) {
    constexpr double Least = std::numeric_limits<int>::min();
    constexpr double Most = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, Least, Most));
}

class UserColors : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        // The whole numbers that enclose the data range.
        int getMin() const override {
            return wholeNumber(std::floor(std::min(datarange.minimum, datarange.maximum)));
        }
        int getMax() const override {
            return wholeNumber(std::ceil(std::max(datarange.minimum, datarange.maximum)));
        }
        int getSize() const override { return 256; }
        rgba_float_t getColor(double value) const override;
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        /// Places in order; those at one location in the order of their numbers.
        void add(rgba_float_t const& color, double location);

        rgba_float_t colorstart;
        rgba_float_t colorend;
        bool constant = false;
        Range datarange;

    private:
        struct Place {
            double location;
            rgba_float_t color;
        };
        std::array<Place, Count> places{};
        std::size_t count = 0;
    };

    UserColors(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    /// Each update makes a new map, so that whoever holds the old one keeps its colours.
    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        if (output.isEmpty() || output.as<Ramp>() != nullptr) {
            auto* const map = new Ramp;
            output.hold(map);
            readParameters(output, *map);
            output.refresh();
        }
        return output.publish();
    }

private:
    /// A colour and its place. The name of the place is spelled as saved networks
    /// have it.
    struct Stop {
        Stop(UserColors* object, int number, rgba_float_t const& initialColor, double initialLocation)
            : color(object, "color" + std::to_string(number), initialColor, 0),
              location(object, "lcoation" + std::to_string(number), initialLocation, 0) {
            location.setProperty("max", 1.0);
            location.setProperty("min", 0.0);
        }

        TypedSlot<rgba_float_t> color;
        TypedSlot<double> location;
    };

    void readParameters(OutputMap const& output, Ramp& map) const {
        Enum choice;
        output.read(colorend, map.colorend);
        output.read(colorstart, map.colorstart);
        output.read(interpolation, choice);
        map.constant = choice.Equal("constant");
        for (Stop const& stop : stops) {
            rgba_float_t color;
            double location = 0;
            output.read(stop.color, color);
            output.read(stop.location, location);
            map.add(color, location);
        }
        output.read(datarange, map.datarange);
    }

    TypedSlot<rgba_float_t> colorend{this, "colorend", {1, 1, 1, 1}, 0};
    TypedSlot<rgba_float_t> colorstart{this, "colorstart", {0, 0, 0, 1}, 0};
    TypedSlot<Enum> interpolation{this, "interpolation",
                                  Enum().addCase("linear").addCase("constant"), 0};
    std::array<Stop, Count> stops{{{this, 1, {0.1, 0.1, 0.1, 1}, 0},
                                   {this, 2, {0.2, 0, 0.3, 1}, 0.125},
                                   {this, 3, {0, 0, 0.85, 1}, 0.25},
                                   {this, 4, {0, 0.5, 1, 1}, 0.375},
                                   {this, 5, {0, 0.85, 0.9, 1}, 0.5},
                                   {this, 6, {0, 0.7, 0, 1}, 0.625},
                                   {this, 7, {1, 1, 0, 1}, 0.75},
                                   {this, 8, {0.9, 0.5, 0, 1}, 0.875},
                                   {this, 9, {0.8, 0.8, 0.9, 1}, 1}}};
    TypedSlot<Range> datarange{this, "datarange", Range(0, 1), 0};
};

/// A place that is no finite number is none: its colour is left out.
void UserColors::Ramp::add(rgba_float_t const& color, double location) {
    if (!std::isfinite(location))
        return;
    std::size_t at = count++;
    for (; at > 0 && places[at - 1].location > location; --at)
        places[at] = places[at - 1];
    places[at] = {location, color};
}

/// The places are parts of the data range. Before the first one, and for what is no
/// number, it is "colorstart", behind the last one "colorend".
rgba_float_t UserColors::Ramp::getColor(double value) const {
    double const part = (value - datarange.minimum) / (datarange.maximum - datarange.minimum);
    if (count == 0 || !(part >= places[0].location))
        return colorstart;
    if (part > places[count - 1].location)
        return colorend;
    std::size_t at = count - 1;  // the last place that is not behind
    while (places[at].location > part)
        --at;
    Place const& here = places[at];
    if (constant || at == count - 1)
        return here.color;
    Place const& next = places[at + 1];
    double const weight = (part - here.location) / (next.location - here.location);
    auto const mix = [&](std::size_t i) {
        return static_cast<float>((1.0 - weight) * here.color[i] + weight * next.color[i]);
    };
    return {mix(0), mix(1), mix(2), mix(3)};
}

VSource<UserColors, ColormapPtr> creator(
    VCreatorProperties(DescriptionIs("Nine colours, each at a place of the user's choice."),
                       NameIs("UserColors"), CategoryIs("Colormaps")),
    0, nullptr, false, InterfaceToken);

bool const valueTypes = registerValueTypes<rgba_float_t, Enum, double, Range>();

}  // namespace
