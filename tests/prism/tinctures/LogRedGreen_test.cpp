/// The bent two-colour gradients at an exponential of the value.
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
        {"all parameters at 0", Telling, 0, {0.1588, 1.00044, 1.15924, 1.36568}},
        {"all parameters at 0.3", Telling, 0.3, {103.38971, -146.82016, -192.06644, -186.97316}},
        {"all parameters at 1", Telling, 1, {6683433, -6386376, -8733111, -7900894.5}},
    };
}

MapDescription gradient(std::string const& name, std::string const& word, std::string const& start,
                        std::string const& end, std::vector<LookupRow> const& lookups) {
    return {
        .name = name,
        .creator = {.order = 0,
                    .preferences = {word},
                    .todo = "",
                    .source = "prism/tinctures/LogRedGreen"},
        .parameters = {parameter<rgba_float_t>("startcolor", start),
                       parameter<rgba_float_t>("endcolor", end), parameter<double>("blend", "0", 1),
                       parameter<double>("multiplier", "0.5")},
        .size = 256,
        .cycle = {.publishesEarly = true,
                  .drawsIcon = false,
                  .age = Age::Raised,
                  .publishesAtEnd = false,
                  .foreign = Foreign::Raised,
                  .ownMustUpdate = true,
                  .change = {{"multiplier", "0"}}},
        .help = {},
        .lookups = lookups + sameForBoth()};
}

DescribedMap const logRedGreen{
    gradient("LogRedGreen", "redgreen", "(1,0,0,1)", "(0,1,0,1)",
             {
                 {"zero is the end colour", {}, 0, {0, 1, 0, 1}},
                 {"a tenth", {}, 0.1, {0.73897207, -1.8780932, 0, -1.1391212}},
                 {"a half", {}, 0.5, {3035.6147, -3307.076, 0, -271.46118}},
                 {"one is in the millions", {}, 1, {6450078.5, -6493833.5, 0, -43755}},
                 {"below zero is as zero", {}, -3, {0, 1, 0, 1}},
                 {"above one is as one", {}, 3, {6450078.5, -6493833.5, 0, -43755}},
                 {"no number is as one", {}, NotANumber, {6450078.5, -6493833.5, 0, -43755}},
                 {"infinity is as one", {}, Infinity, {6450078.5, -6493833.5, 0, -43755}},
                 {"negative infinity is as zero", {}, -Infinity, {0, 1, 0, 1}},
                 {"without a multiplier still unbounded",
                  {{"multiplier", "0"}},
                  0.5,
                  {-11.182494, 12.182494, 0, 1}},
                 {"without a multiplier, half blended",
                  {{"multiplier", "0"}, {"blend", "0.5"}},
                  0.5,
                  {-11.182494, 12.182494, 6.091247, 1}},
                 {"full blend: zero is the complement", {{"blend", "1"}}, 0, {0, 1, 1, 1}},
             })};

DescribedMap const ort{gradient(
    "Ort", "ort", "(0.99215686,0.8156863,0.13725491,1)", "(0.27450982,0.11372549,0.4862745,1)",
    {
        {"zero is the end colour", {}, 0, {0.27450982, 0.11372549, 0.4862745, 1}},
        {"a tenth", {}, 0.1, {0.2176212, 0.38918236, -0.8118413, -1.1391212}},
        {"one", {}, 1, {4616868.5, 4522726, -2272480.8, -43755}},
        {"below zero is as zero", {}, -3, {0.27450982, 0.11372549, 0.4862745, 1}},
        {"above one is as one", {}, 3, {4616868.5, 4522726, -2272480.8, -43755}},
        {"no number is as one", {}, NotANumber, {4616868.5, 4522726, -2272480.8, -43755}},
        {"infinity is as one", {}, Infinity, {4616868.5, 4522726, -2272480.8, -43755}},
        {"negative infinity is as zero", {}, -Infinity, {0.27450982, 0.11372549, 0.4862745, 1}},
    })};

}  // namespace
}  // namespace tests
