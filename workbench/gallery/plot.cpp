#include "workbench/gallery/plot.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <optional>

#include "runtime/quartz/text.hpp"
#include "workbench/gallery/Curve.hpp"
#include "workbench/gallery/Light.hpp"
#include "workbench/gallery/PlotScale.hpp"
#include "workbench/gallery/Span.hpp"
#include "workbench/gallery/html.hpp"

namespace workbench {

namespace {

// In pixels of the drawing; as wide as the ramps of the page.
constexpr double Width = 640.0;
constexpr double ComponentsHeight = 180.0;
constexpr double LightnessHeight = 90.0;
constexpr double RangeHeight = 18.0;  ///< for the numbers below
constexpr double MinLabelDistance = 12.0;

std::string pixels(double value) {
    return Orlo::numberText(std::floor(value * 100.0 + 0.5) / 100.0);
}

std::string rectangle(char const* style, double top, double bottom) {
    return "<rect class=\"" + std::string(style) + "\" x=\"0\" y=\"" + pixels(top) +
           "\" width=\"640\" height=\"" + pixels(bottom - top) + "\"/>";
}

std::string line(char const* style, double x1, double y1, double x2, double y2) {
    return "<line class=\"" + std::string(style) + "\" x1=\"" + pixels(x1) + "\" y1=\"" +
           pixels(y1) + "\" x2=\"" + pixels(x2) + "\" y2=\"" + pixels(y2) + "\"/>";
}

std::string label(char const* style, double x, double y, std::string const& text) {
    return "<text class=\"" + std::string(style) + "\" x=\"" + pixels(x) + "\" y=\"" + pixels(y) +
           "\">" + text + "</text>";
}

/// A line with its number before it, if that is far from those that stand.
std::string tick(char const* style, double y, std::string const& text, std::vector<double>& taken) {
    bool const fits = std::ranges::all_of(
        taken, [y](double other) { return std::abs(other - y) >= MinLabelDistance; });
    if (fits)
        taken.push_back(y);
    return line(style, 0, y, Width, y) + (fits ? label("tick", -7, y + 4, text) : "");
}

std::string quarters(double height) {
    std::string lines;
    for (double const part : {0.25, 0.5, 0.75})
        lines += line("grid", part * Width, 0, part * Width, height);
    return lines;
}

using Quantity = std::function<double(Orlo::rgba_float_t const&)>;
using Position = std::function<double(double)>;

std::string curve(Samples const& samples, char const* style, Quantity const& quantity,
                  Position const& position) {
    std::vector<std::optional<double>> heights;
    for (Orlo::rgba_float_t const& color : samples.colors) {
        double const value = quantity(color);
        heights.push_back(std::isfinite(value) ? std::optional(position(value)) : std::nullopt);
    }
    return "<path class=\"curve " + std::string(style) + "\" d=\"" + curvePath(heights, Width) +
           "\"/>";
}

std::string drawing(std::string const& title, double height, std::string const& content) {
    return "<svg class=\"plot\" viewBox=\"0 0 640 " + pixels(height) +
           "\" role=\"img\" aria-label=\"" + title + "\">" + content + "</svg>\n";
}

PlotScale scaleFor(Samples const& samples) {
    Span const span = componentSpan(samples);
    return {span.min, span.max};
}

/// The numbers of the axis; 0 and 1 come first, so that they have their place.
std::vector<double> ticksByWeight(PlotScale const& scale) {
    std::vector<double> ticks = scale.ticks();
    std::stable_partition(ticks.begin(), ticks.end(),
                          [](double tick) { return tick == 0.0 || tick == 1.0; });
    return ticks;
}

}  // namespace

bool isLogarithmic(Samples const& samples) {
    return scaleFor(samples).isLogarithmic();
}

std::string componentPlot(Samples const& samples) {
    PlotScale const scale = scaleFor(samples);
    auto const position = [&](double value) {
        return (1.0 - scale.height(value)) * ComponentsHeight;
    };
    std::string content = rectangle("beyond", 0, ComponentsHeight) +
                          rectangle("within", position(1), position(0)) +
                          quarters(ComponentsHeight);
    std::vector<double> taken;
    for (double const value : ticksByWeight(scale))
        content += tick(value == 0.0 || value == 1.0 ? "mark" : "grid", position(value),
                        readable(value), taken);
    constexpr std::array Styles{"red", "green", "blue"};
    for (std::size_t i = 0; i < Styles.size(); ++i)
        content += curve(
            samples, Styles[i], [i](auto const& color) { return double{color[i]}; }, position);
    return drawing("Red, green and blue over the range", ComponentsHeight, content);
}

std::string lightnessPlot(Samples const& samples) {
    auto const position = [](double value) {
        return 4.0 + (1.0 - value / 100.0) * LightnessHeight;
    };
    double const bottom = position(0) + 4.0;
    std::string content = rectangle("within", 0, bottom) + quarters(bottom);
    std::vector<double> taken;
    for (double const value : {0.0, 50.0, 100.0})
        content += tick("grid", position(value), readable(value), taken);
    content += curve(
        samples, "lightness", [](auto const& color) { return lightness(lightOf(color)); },
        position);
    for (double const part : {0.0, 0.25, 0.5, 0.75, 1.0})
        content += label(part == 0.0   ? "first"
                         : part == 1.0 ? "last"
                                       : "middle",
                         part * Width, bottom + 15, readable(samples.domain.at(part)));
    return drawing("Lightness over the range", bottom + RangeHeight, content);
}

}  // namespace workbench
