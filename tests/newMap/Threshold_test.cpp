/// The map that docs/new-map.md shows, as an entry of the library.
#include <limits>

#include "tests/prism/parameterRow.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

rgba_float_t const Black{0, 0, 0, 1};
rgba_float_t const White{1, 1, 1, 1};

DescribedMap const description{{
    .name = "Threshold",
    .creator = {.todo = "",
                .description = "Black below a level, one colour from there on.",
                .date = ""},
    .parameters = {parameter<double>("level", "0.5"),
                   parameter<rgba_float_t>("color", "(1,1,1,1)")},
    .size = 256,
    .cycle = {.change = {{"level", "0.05"}}},
    .help = {},
    .lookups =
        {
            {"below the range", {}, -1, Black},
            {"zero", {}, 0, Black},
            {"just below the level", {}, 0.49999999999999994, Black},
            {"the level itself", {}, 0.5, White},
            {"one", {}, 1, White},
            {"above the range", {}, 2, White},
            {"no number is below every level", {}, NotANumber, Black},
            {"infinity", {}, Infinity, White},
            {"negative infinity", {}, -Infinity, Black},
            {"another level", {{"level", "0.7"}}, 0.6, Black},
            {"another colour", {{"color", "(1,2,3,0.5)"}}, 0.6, {1, 2, 3, 0.5}},
        },
}};

}  // namespace
}  // namespace tests
