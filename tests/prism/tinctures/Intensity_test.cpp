/// The straight blend of two colours.
#include <limits>

#include "tests/prism/parameterRow.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

DescribedMap const description{{
    .name = "Intensitymap",
    .creator = {.order = 2000,
                .preferences = {},
                .description = "Provides a greyscale color map.",
                .tags = "General",
                .source = "prism/tinctures/Intensity"},
    .parameters = {parameter<rgba_float_t>("startcolor", "(0,0,0,1)"),
                   parameter<rgba_float_t>("endcolor", "(1,1,1,1)")},
    .size = 256,
    .cycle = {.publishesEarly = true,
              .ownMustUpdate = true,
              .change = {{"startcolor", "(1,0,0,1)"}}},
    .help = {},
    .lookups =
        {
            {"zero is the start colour", {}, 0, {0, 0, 0, 1}},
            {"one is the end colour", {}, 1, {1, 1, 1, 1}},
            {"a half is grey", {}, 0.5, {0.5, 0.5, 0.5, 1}},
            {"a tenth, both products as floats", {}, 0.1, {0.1, 0.1, 0.1, 1}},
            {"two is twice white: nothing limits", {}, 2, {2, 2, 2, 1}},
            {"minus one is minus white", {}, -1, {-1, -1, -1, 1}},
            {"alpha blends like the rest",
             {{"startcolor", "(0,0,0,0)"}},
             0.25,
             {0.25, 0.25, 0.25, 0.25}},
            {"each product is a float before the sum",
             {{"startcolor", "(0.3,0.7,0.1,0.9)"}, {"endcolor", "(0.9,0.2,0.6,0.4)"}},
             0.3,
             {0.48, 0.54999995, 0.25, 0.75}},
            {"no number gives no numbers",
             {},
             NotANumber,
             {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"infinity", {}, Infinity, {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"negative infinity", {}, -Infinity, {NotANumber, NotANumber, NotANumber, NotANumber}},
        },
}};

}  // namespace
}  // namespace tests
