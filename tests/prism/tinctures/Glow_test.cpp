/// The parabola through a chosen colour.
#include <limits>

#include "tests/prism/parameterRow.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

DescribedMap const description{{
    .name = "Glow",
    .creator =
        {.order = 2000, .preferences = {"glow"}, .todo = "", .source = "prism/tinctures/Glow"},
    .parameters = {parameter<rgba_float_t>("glow", "(1,0.6,0,1)"),
                   parameter<double>("center", "0.5"),
                   parameter<Orlo::Enum>("inverted", "no{no}{yes}")},
    .size = 256,
    .cycle = {.age = Age::RaisedThenTouched,
              .foreign = Foreign::DrawnAndTouched,
              .ownMustUpdate = true,
              .change = {{"glow", "(0,0.5,1,1)"}}},
    .help = {},
    .lookups =
        {
            {"zero is black", {}, 0, {0, 0, -0.0, 1}},
            {"a quarter: blue dips below 0", {}, 0.25, {0.625, 0.32500002, -0.125, 1}},
            {"a half is the glow", {}, 0.5, {1, 0.6, 0, 1}},
            {"three quarters: red overshoots 1", {}, 0.75, {1.125, 0.82500005, 0.375, 1}},
            {"one is white", {}, 1, {1, 1, 1, 1}},
            {"below zero the parabola goes on", {}, -1, {-5, -1.8000002, 3, 1}},
            {"above one the parabola goes on", {}, 2, {-2, 1.1999998, 6, 1}},
            {"inverted: zero is white", {{"inverted", "yes"}}, 0, {1, 1, 1, 1}},
            {"inverted: a quarter", {{"inverted", "yes"}}, 0.25, {1.125, 0.82500005, 0.375, 1}},
            {"inverted: one is black", {{"inverted", "yes"}}, 1, {0, 0, -0.0, 1}},
            {"inverted no is not inverted",
             {{"inverted", "no"}},
             0.25,
             {0.625, 0.32500002, -0.125, 1}},
            {"centre 0 is grey",
             {{"center", "0"}, {"glow", "(1,0.6,0,0.5)"}},
             0.25,
             {0.25, 0.25, 0.25, 0.5}},
            {"centre 0 is grey, inverted too",
             {{"center", "0"}, {"inverted", "yes"}},
             0.25,
             {0.75, 0.75, 0.75, 1}},
            {"centre -0 is grey", {{"center", "-0"}}, 0.25, {0.25, 0.25, 0.25, 1}},
            {"a centre that is no number is grey",
             {{"center", "nan"}},
             0.25,
             {0.25, 0.25, 0.25, 1}},
            {"centre 1 is black",
             {{"center", "1"}, {"glow", "(1,0.6,0,0.5)"}},
             0.25,
             {0, 0, 0, 0.5}},
            {"centre 1 is black beyond one too", {{"center", "1"}}, 3, {0, 0, 0, 1}},
            {"a centre beyond 1", {{"center", "2"}}, 0.5, {0.625, 0.675, 0.75, 1}},
            {"a centre below 0", {{"center", "-1"}}, 0.5, {0.25, 0.3, 0.375, 1}},
            {"another centre", {{"center", "0.3"}}, 0.7, {1.4, 1, 0.4, 1}},
            {"alpha is that of the glow",
             {{"glow", "(0.2,0.4,0.8,0.125)"}},
             7,
             {57.399998, 23.8, -43.4, 0.125}},
            {"no number", {}, NotANumber, {NotANumber, NotANumber, NotANumber, 1}},
            {"infinity", {}, Infinity, {-Infinity, -Infinity, Infinity, 1}},
            {"negative infinity", {}, -Infinity, {-Infinity, -Infinity, Infinity, 1}},
        },
}};

}  // namespace
}  // namespace tests
