/// The map that marks zero.
#include <limits>

#include "tests/prism/parameterRow.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

DescribedMap const description{{
    .name = "ZeroInfinity",
    .creator = {.order = 0,
                .preferences = {"zero"},
                .description = " A colormap that shows a strong depiction of the zero value.",
                .tags = "General;Tidewatch",
                .source = "prism/tinctures/ZeroInfinity"},
    .parameters = {parameter<rgba_float_t>("startpositive", "(0.5,1,0,1)"),
                   parameter<rgba_float_t>("endpositive", "(0,0.4,0.5,1)"),
                   parameter<rgba_float_t>("startnegative", "(1,0,0,1)"),
                   parameter<rgba_float_t>("endnegative", "(1,1,0,1)"),
                   parameter<rgba_float_t>("zero", "(1,1,1,1)"),
                   parameter<Orlo::Range>("range", "0,1"), parameter<double>("epsilon", "0")},
    .size = 256,
    .cycle = {.publishesEarly = true,
              .drawsIcon = false,
              .age = Age::Raised,
              .publishesAtEnd = false,
              .foreign = Foreign::Raised,
              .ownMustUpdate = true,
              .change = {{"endpositive", "(1,0,1,1)"}}},
    .help = {},
    .lookups =
        {
            {"zero takes the positive start, not the zero colour", {}, 0, {0.5, 1, 0, 1}},
            {"the positive gradient", {}, 0.3, {0.35, 0.82, 0.15, 1}},
            {"one is the positive end", {}, 1, {0, 0.4, 0.5, 1}},
            {"above one it goes on", {}, 2.5, {-0.75, -0.5, 1.25, 1}},
            {"below zero the negative gradient", {}, -0.3, {1, 0.3, 0, 1}},
            {"minus one is the negative end", {}, -1, {1, 1, 0, 1}},
            {"far below zero it goes on", {}, -3, {1, 3, 0, 1}},
            {"no number takes the positive branch",
             {},
             NotANumber,
             {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"infinity", {}, Infinity, {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"negative infinity", {}, -Infinity, {NotANumber, NotANumber, NotANumber, NotANumber}},
            {"the gradients run over the lookup value: -0.5 at 0.25",
             {{"range", "-1,1"}},
             0.25,
             {1, -0.25, 0, 1}},
            {"the upper half of that range", {{"range", "-1,1"}}, 0.75, {0.125, 0.55, 0.375, 1}},
            {"all negative parameters",
             {{"range", "-1,1"},
              {"startnegative", "(0.3,0.2,0.1,0.7)"},
              {"endnegative", "(0.6,0.9,0.4,0.2)"}},
             0.3,
             {0.21000001, -0.00999999, 0.00999999, 0.84999996}},
            {"all positive parameters",
             {{"startpositive", "(0.3,0.2,0.1,0.7)"}, {"endpositive", "(0.6,0.9,0.4,0.2)"}},
             0.3,
             {0.39000002, 0.40999997, 0.19, 0.54999995}},
            {"a band around zero",
             {{"epsilon", "0.01"}, {"zero", "(0.1,0.2,0.3,0.4)"}},
             0,
             {0.1, 0.2, 0.3, 0.4}},
            {"the band is measured behind the arc tangent: inside",
             {{"epsilon", "0.01"}},
             0.0157,
             {1, 1, 1, 1}},
            {"the band is measured behind the arc tangent: outside",
             {{"epsilon", "0.01"}},
             0.01572,
             {0.49214, 0.990568, 0.00786, 1}},
            {"the band below zero: inside", {{"epsilon", "0.01"}}, -0.0157, {1, 1, 1, 1}},
            {"the band below zero: outside", {{"epsilon", "0.01"}}, -0.01572, {1, 0.01572, 0, 1}},
            {"the edge of the band lies outside: 1 is squeezed to a half",
             {{"epsilon", "0.5"}},
             1,
             {0, 0.4, 0.5, 1}},
            {"epsilon 1 covers a million", {{"epsilon", "1"}}, 1e6, {1, 1, 1, 1}},
            {"epsilon 1 covers minus a million", {{"epsilon", "1"}}, -1e6, {1, 1, 1, 1}},
            {"epsilon 2 covers infinity", {{"epsilon", "2"}}, Infinity, {1, 1, 1, 1}},
            {"a negative epsilon covers nothing", {{"epsilon", "-1"}}, 0, {0.5, 1, 0, 1}},
            {"an empty range has one branch: positive",
             {{"range", "2,2"}},
             -0.5,
             {0.75, 1.3, -0.25, 1}},
            {"an empty range has one branch: negative", {{"range", "-2,-2"}}, 0.5, {1, -0.5, 0, 1}},
        },
}};

}  // namespace
}  // namespace tests
