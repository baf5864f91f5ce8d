#include "workbench/session/lookupLine.hpp"

#include "runtime/quartz/text.hpp"

namespace workbench {

namespace {

template <class Number>
std::string shortestText(Number value) {
    return value != value ? "nan" : Orlo::numberText(value);
}

}  // namespace

std::string shortest(double value) {
    return shortestText(value);
}

std::string shortest(float value) {
    return shortestText(value);
}

std::string lookupLine(Orlo::Colormap const& map, double value) {
    Orlo::rgba_float_t const color = map.getColor(value);
    std::string text = shortest(value);
    for (std::size_t i = 0; i < color.size(); ++i)
        text += " " + shortest(color[i]);
    return text;
}

}  // namespace workbench
