/// One colour for every value.
#include <limits>

#include "tests/prism/parameterRow.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

rgba_float_t const Red{1, 0, 0, 1};

DescribedMap const description{{
    .name = "Monochrome",
    .creator =
        {.order = 2000, .preferences = {}, .todo = "", .source = "prism/tinctures/Monochrome"},
    .parameters = {parameter<rgba_float_t>("color", "(1,0,0,1)")},
    .size = 256,
    .cycle = {.publishesEarly = true, .ownMustUpdate = true, .change = {{"color", "(0,1,0,1)"}}},
    .help = {},
    .lookups =
        {
            {"zero", {}, 0, Red},
            {"inside", {}, 0.3, Red},
            {"one", {}, 1, Red},
            {"below", {}, -7, Red},
            {"above", {}, 7, Red},
            {"no number", {}, NotANumber, Red},
            {"infinity", {}, Infinity, Red},
            {"negative infinity", {}, -Infinity, Red},
            {"a colour beyond 0 to 1 comes back as it was set",
             {{"color", "(2,-1,0.5,3)"}},
             0.5,
             {2, -1, 0.5, 3}},
        },
}};

}  // namespace
}  // namespace tests
