/// Stripes.
#include <limits>

#include "tests/prism/parameterRow.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<Setting> const Colored{{"startcolor", "(0.9,0.3,0.2,0.5)"},
                                   {"endcolor", "(0.1,0.6,0.7,0.8)"}};

DescribedMap const description{{
    .name = "Colormaps/Zebramap",
    .creator =
        {.category = "", .order = 2000, .preferences = {}, .todo = "", .source = "", .date = ""},
    .parameters = {parameter<Orlo::VTime>("time", "0[0,0]@0"), parameter<double>("timescale", "1"),
                   parameter<rgba_float_t>("startcolor", "(0,0,0,1)", 1),
                   parameter<rgba_float_t>("endcolor", "(1,1,1,1)", 1),
                   parameter<double>("frequency", "0.1"), parameter<double>("phase", "0", 1)},
    .size = 256,
    .cycle = {.publishesEarly = true,
              .ownMustUpdate = true,
              .reads = {"startcolor", "endcolor", "frequency", "phase", "time", "timescale"},
              .change = {{"frequency", "0.3"}}},
    .help = {},
    .lookups =
        {
            {"zero is the start colour", {}, 0, {0, 0, 0, 1}},
            {"half a stripe", {}, 0.05, {0.5, 0.5, 0.5, 1}},
            {"one and a half stripes", {}, 0.15, {0.5, 0.5, 0.5, 1}},
            {"two and a half stripes", {}, 0.25, {0.5, 0.5, 0.5, 1}},
            {"a stripe is a start colour again", {}, 0.1, {0, 0, 0, 1}},
            {"0.3 is not quite three stripes", {}, 0.3, {1, 1, 1, 1}},
            {"0.3 falls just short of the end colour", Colored, 0.3, {0.1, 0.6, 0.7, 0.8}},
            {"one", {}, 1, {1, 1, 1, 1}},
            {"above one the stripes go on", {}, 1.234, {0.34, 0.34, 0.34, 1}},
            {"below zero they go on without a seam", {}, -0.02, {0.8, 0.8, 0.8, 1}},
            {"minus a stripe leaves -0, which is no wrap", Colored, -0.1, {0.9, 0.3, 0.2, 0.5}},
            {"a quarter of a stripe, coloured", Colored, 0.025, {0.6999999, 0.375, 0.325, 0.575}},
            {"transparent stripes", {{"startcolor", "(0,0,0,0)"}}, 0.025, {0.25, 0.25, 0.25, 0.25}},
            {"wide stripes", {{"frequency", "0.7"}}, 0.9, {0.2857143, 0.2857143, 0.2857143, 1}},
            {"half a stripe of phase", {{"phase", "0.5"}}, 0.06, {0.1, 0.1, 0.1, 1}},
            {"a quarter of a stripe of phase", {{"phase", "0.25"}}, 0.06, {0.35, 0.35, 0.35, 1}},
            {"below the phase", {{"phase", "0.5"}}, 0.02, {0.7, 0.7, 0.7, 1}},
            {"a whole stripe of phase changes nothing",
             {{"phase", "1"}, {"frequency", "0.25"}},
             0.625,
             {0.5, 0.5, 0.5, 1}},
            {"no width gives no numbers",
             {{"frequency", "0"}},
             0.5,
             {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"a negative width falls instead",
             {{"frequency", "-0.25"}},
             0.0625,
             {0.75, 0.75, 0.75, 1}},
            {"a negative width below zero",
             {{"frequency", "-0.25"}},
             -0.0625,
             {0.25, 0.25, 0.25, 1}},
            {"no number", {}, NotANumber, {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"infinity", {}, Infinity, {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"negative infinity", {}, -Infinity, {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"time plays no part",
             {{"time", "3[0,9]@1"}, {"timescale", "2"}},
             0.15,
             {0.5, 0.5, 0.5, 1}},
        },
}};

}  // namespace
}  // namespace tests
