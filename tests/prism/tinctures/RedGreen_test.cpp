/// The bent two-colour gradients.
#include <limits>

#include "tests/prism/parameterRow.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<Setting> const Telling{{"startcolor", "(0.9,0.3,0.2,0.5)"},
                                   {"endcolor", "(0.1,0.6,0.7,0.8)"},
                                   {"blend", "0.3"},
                                   {"multiplier", "0.7"}};

/// What both entries have in common: with the same parameters, the same map.
std::vector<LookupRow> sameForBoth() {
    return {
        {"all parameters at 0", Telling, 0, {0.9, 0.3, 0.2, 0.5}},
        {"all parameters at 0.3", Telling, 0.3, {1.0760924, 0.8100896, 0.77458197, 1.2064099}},
        {"all parameters at 0.8", Telling, 0.8, {0.44459394, 1.2457896, 1.4007837, 1.7268038}},
        {"all parameters at 1", Telling, 1, {0.1588, 1.00044, 1.15924, 1.36568}},
    };
}

MapDescription gradient(std::string const& name, std::string const& word, std::string const& start,
                        std::string const& end, std::vector<LookupRow> const& lookups) {
    return {
        .name = name,
        .creator = {.order = 0,
                    .preferences = {word},
                    .todo = "",
                    .source = "prism/tinctures/RedGreen"},
        .parameters = {parameter<rgba_float_t>("startcolor", start),
                       parameter<rgba_float_t>("endcolor", end), parameter<double>("blend", "0", 1),
                       parameter<double>("multiplier", "0.5")},
        .size = 256,
        .cycle = {.publishesEarly = true, .ownMustUpdate = true, .change = {{"multiplier", "0"}}},
        .help = {},
        .lookups = lookups + sameForBoth()};
}

DescribedMap const redGreen{gradient(
    "RedGreen", "redgreen", "(1,0,0,1)", "(0,1,0,1)",
    {
        {"zero is the start colour", {}, 0, {1, 0, 0, 1}},
        {"one is the end colour", {}, 1, {0, 1, 0, 1}},
        {"a half gains, alpha too", {}, 0.5, {0.75, 0.75, 0, 1.5}},
        {"a third", {}, 0.333, {0.96329606, 0.48092592, 0, 1.444222}},
        {"below zero is as zero", {}, -3, {1, 0, 0, 1}},
        {"above one is as one", {}, 3, {0, 1, 0, 1}},
        {"no number is as one", {}, NotANumber, {0, 1, 0, 1}},
        {"infinity is as one", {}, Infinity, {0, 1, 0, 1}},
        {"negative infinity is as zero", {}, -Infinity, {1, 0, 0, 1}},
        {"without a multiplier nothing gains", {{"multiplier", "0"}}, 0.5, {0.5, 0.5, 0, 1}},
        {"without a multiplier the bend gains nothing either",
         {{"multiplier", "0"}, {"blend", "0.5"}},
         0.7,
         {0.3, 0.7, 0.35, 1}},
        {"half a blend lifts by half", {{"blend", "0.5"}}, 1, {0, 1.5, 0.75, 1.5}},
        {"full blend ends in the complement", {{"blend", "1"}}, 1, {0, 1, 1, 1}},
        {"full blend leaves the end colour out",
         {{"blend", "1"}, {"endcolor", "(0.5,0.5,0.5,0.25)"}, {"startcolor", "(0.9,0.3,0.2,0.5)"}},
         0.4,
         {0.8584, 0.68079996, 0.6512, 1.036}},
        {"a blend beyond 1 turns weights negative",
         {{"blend", "2"}},
         0.5,
         {0.75, -2.25, -4.5, -1.5}},
        {"a blend below 0", {{"blend", "-1"}}, 0.75, {0.34375, -3.09375, 3.09375, -2.75}},
    })};

DescribedMap const muv{gradient(
    "Muv", "muv", "(0.99215686,0.8156863,0.13725491,1)", "(0.27450982,0.11372549,0.4862745,1)",
    {
        {"zero is the start colour", {}, 0, {0.99215686, 0.8156863, 0.13725491, 1}},
        {"one is the end colour", {}, 1, {0.27450982, 0.11372549, 0.4862745, 1}},
        {"a half", {}, 0.5, {0.95, 0.69705886, 0.46764708, 1.5}},
        {"below zero is as zero", {}, -3, {0.99215686, 0.8156863, 0.13725491, 1}},
        {"above one is as one", {}, 3, {0.27450982, 0.11372549, 0.4862745, 1}},
        {"no number is as one", {}, NotANumber, {0.27450982, 0.11372549, 0.4862745, 1}},
        {"infinity is as one", {}, Infinity, {0.27450982, 0.11372549, 0.4862745, 1}},
        {"negative infinity is as zero", {}, -Infinity, {0.99215686, 0.8156863, 0.13725491, 1}},
    })};

}  // namespace
}  // namespace tests
