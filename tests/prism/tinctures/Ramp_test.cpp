/// Hues round the colour circle.
#include <limits>

#include "tests/prism/parameterRow.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

DescribedMap const description{{
    .name = "Colorramp",
    .creator =
        {.order = 2000, .preferences = {"colorramp"}, .todo = "", .source = "prism/tinctures/Ramp"},
    .parameters = {parameter<Orlo::VTime>("time", "0[0,1]@0"), parameter<double>("timescale", "1"),
                   parameter<double>("color", "0.07"), parameter<double>("saturator", "0.3", 2),
                   parameter<double>("purity", "1", 1),
                   parameter<double>("exp_scale", "1", 2, {{"min", "0"}, {"max", "10"}}),
                   parameter<double>("shift", "0", 1, {{"min", "-10"}, {"max", "10"}}),
                   parameter<int>("steps", "256", 1, {{"min", "2"}, {"max", "256"}})},
    .size = 256,
    .cycle = {.reads = {"time", "timescale", "color", "exp_scale", "shift", "steps", "saturator",
                        "purity"},
              .change = {{"color", "0.2"}}},
    .help = {},
    .lookups =
        {
            {"zero is red", {}, 0, {1, 0, 0, 1}},
            {"first sixth", {}, 0.1, {0.9958044, 0.4194508, 0.0020911803, 1}},
            {"second sixth", {}, 0.4, {0.32026285, 0.9832706, 0.008259496, 1}},
            {"third sixth", {}, 0.6, {0.012284485, 0.9749588, 0.5128751, 1}},
            {"fourth sixth", {}, 0.9, {0.01819231, 0.22595239, 0.9625572, 1}},
            {"one is at 252 degrees, the fifth sixth",
             {},
             1,
             {0.2077903, 0.020127287, 0.958441, 1}},
            {"last sixth", {{"color", "0.09"}}, 1, {0.946729, 0.025561692, 0.578262, 1}},
            {"above one the hue goes on", {}, 1.5, {0.9379923, 0.30208042, 0.02954674, 1}},
            {"below zero the hue wraps", {}, -0.1, {1.0042044, -0.00210882, 0.4205428, 1}},
            {"ten turns", {{"color", "1"}}, 0.97, {0.21756046, 0.14628018, 0.502681, 1}},
            {"a falloff above 1 is black", {{"saturator", "2"}, {"color", "1"}}, 1, {0, 0, 0, 1}},
            {"a falloff of exactly 1 is black as well, by its brightness",
             {{"saturator", "1"}, {"color", "1"}},
             1,
             {0, 0, 0, 1}},
            {"no color is one bright hue",
             {{"color", "0"}, {"purity", "0.5"}},
             0.7,
             {1, 0.5, 0.5, 1}},
            {"no purity is grey and falls",
             {{"purity", "0"}, {"saturator", "5"}},
             0.8,
             {0.5184, 0.5184, 0.5184, 1}},
            {"purity above 1 leaves 0 to 1",
             {{"purity", "1.5"}},
             0.3,
             {0.60476434, 0.9874397, -0.4843886, 1}},
            {"a negative saturator leaves 0 to 1",
             {{"saturator", "-4"}},
             0.8,
             {-0.33559138, 0.8380191, 1.498176, 1}},
            {"exponent 0 is one colour",
             {{"exp_scale", "0"}},
             0,
             {0.2077903, 0.020127287, 0.958441, 1}},
            {"exponent 0 is one colour, also elsewhere",
             {{"exp_scale", "0"}},
             0.6,
             {0.2077903, 0.020127287, 0.958441, 1}},
            {"a bent input", {{"exp_scale", "2.5"}}, 0.6, {0.8201221, 0.9883224, 0.005787594, 1}},
            {"a shifted input", {{"shift", "0.25"}}, 0.6, {0.017218424, 0.42460033, 0.9646186, 1}},
            {"a negative shift wraps the hue",
             {{"shift", "-0.5"}},
             0.25,
             {0.9597363, -0.005305247, 1.0105276, 1}},
            {"just below 0 degrees is exactly 360", {{"shift", "-1e-10"}}, 0, {1, 0, 0.9999995, 1}},
            {"below zero with a broken exponent is no number",
             {{"exp_scale", "0.5"}},
             -1,
             {NotANumber, NotANumber, NotANumber, 1}},
            {"a hue that is too great is no number",
             {{"color", "1e37"}, {"saturator", "0"}},
             1,
             {1, 0, NotANumber, 1}},
            {"no number", {}, NotANumber, {NotANumber, NotANumber, NotANumber, 1}},
            {"infinity is black", {}, Infinity, {0, 0, 0, 1}},
            {"negative infinity", {}, -Infinity, {Infinity, -Infinity, NotANumber, 1}},
            {"steps play no part", {{"steps", "2"}}, 0.4, {0.32026285, 0.9832706, 0.008259496, 1}},
            {"time plays no part",
             {{"time", "3[0,9]@1"}, {"timescale", "2"}},
             0.4,
             {0.32026285, 0.9832706, 0.008259496, 1}},
        },
}};

}  // namespace
}  // namespace tests
