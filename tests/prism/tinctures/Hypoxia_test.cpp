/// The hypoxia tints.
#include <limits>

#include "tests/prism/MapDescription.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<rgba_float_t> const Tints{
    {0, 0.25, 0.9, 0},   {0, 0.5, 1, 0},     {0, 0.65, 1, 0},  {0, 0.85, 0.9, 0}, {0, 1, 0.9, 0},
    {0.7, 1, 1, 0},      {0.2, 0.5, 0, 0},   {0, 1, 0, 0},     {1, 1, 0, 0},      {0.9, 0.5, 0, 0},
    {0.6, 0.15, 0.1, 0}, {0.8, 0.8, 0.9, 0}, {0.5, 0, 0.5, 0},
};

HelpRow const Help{
    .shortText =
        "A colormap specifically useful for Bathymetric and topographic displays, "
        "providing  bluish colors for low values and green/yellow/brownish tones for "
        "large values. ",
    .link = "https://en.wikipedia.org/wiki/Hypsometric_tints",
    .longText =
        "A colormap specifically useful for Bathymetric and topographic displays, "
        "providing  bluish colors for low values and green/yellow/brownish tones for "
        "large values.  This color scheme is known as "
        "<A HREF=\"https://en.wikipedia.org/wiki/Hypsometric_tints\"> hypsometric "
        "tints</A>.<BR> "};

DescribedMap const description{{
    .name = "Hypoxia",
    .creator = {.order = 0,
                .preferences = {"hypoxia"},
                .description =
                    "A colormap specifically useful for Bathymetric and topographic displays, "
                    "providing bluish colors for low values and green/yellow/brownish tones for "
                    "large values.",
                .tags = "General",
                .source = "prism/tinctures/Hypoxia"},
    .parameters = {},
    .size = 13,
    .cycle = {},
    .help = Help,
    .lookups = rowsOf(Tints) +
               std::vector<LookupRow>{
                   {"zero is row 0", {}, 0, Tints[0]},
                   {"a half is row 7", {}, 0.5, Tints[7]},
                   {"one is limited to row 12", {}, 1, Tints[12]},
                   {"two values in one band are one colour", {}, 0.51, Tints[7]},
                   {"just below zero is row 0", {}, -0.001, Tints[0]},
                   {"below zero is row 0", {}, -5, Tints[0]},
                   {"above one is row 12", {}, 5, Tints[12]},
                   {"a great value within 32 bits is row 12", {}, 1.6e8, Tints[12]},
                   {"beyond 32 bits upward is row 0", {}, 1e9, Tints[0]},
                   {"beyond 32 bits downward is row 0", {}, -1e9, Tints[0]},
                   {"no number is row 0", {}, NotANumber, Tints[0]},
                   {"infinity is row 0", {}, Infinity, Tints[0]},
                   {"negative infinity is row 0", {}, -Infinity, Tints[0]},
               },
}};

}  // namespace
}  // namespace tests
