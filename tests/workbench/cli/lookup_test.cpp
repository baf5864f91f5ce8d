#include <nlohmann/json.hpp>

#include "tests/workbench/cli/telmbench.hpp"

namespace {

using namespace tests;

struct LookupCase {
    char const* rule;
    Lines arguments;  ///< behind "lookup"
    Lines expected;
};

LookupCase const lookupCases[] = {
    {"a bare name", {"Hypsometric", "0.5"}, {"0.5 0.2 0.5 0 0"}},
    {"a full key", {"Colormaps/Hypsometric", "0.5"}, {"0.5 0.2 0.5 0 0"}},
    {"a line for each value, in their order",
     {"Hypsometric", "1", "0", "0.5"},
     {"1 0.8 0.8 0.9 0", "0 0.1 0.1 0.1 0", "0.5 0.2 0.5 0 0"}},
    {"floats in their shortest form", {"TulElbeColorScheme", "0"}, {"0 1 0.51373 0.06667 0"}},
    {"negative values", {"Topographic", "-0.5", "-.5"}, {"-0.5 0 0.5 1 0", "-0.5 0 0.5 1 0"}},
    {"exponents, which come back in the shortest form",
     {"Hypsometric", "5e-1", "1e+300", "-1E-300"},
     {"0.5 0.2 0.5 0 0", "1e+300 0.1 0.1 0.1 0", "-1e-300 0.1 0.1 0.1 0"}},
    {"hexadecimal floats",
     {"Hypsometric", "0x1p-1", "0X1.8P0", "-0x1p-3"},
     {"0.5 0.2 0.5 0 0", "1.5 0.8 0.8 0.9 0", "-0.125 0.1 0.1 0.1 0"}},
    {"what is no number, or not finite",
     {"Hypsometric", "nan", "-nan", "inf", "-inf", "Infinity"},
     {"nan 0.1 0.1 0.1 0", "nan 0.1 0.1 0.1 0", "inf 0.1 0.1 0.1 0", "-inf 0.1 0.1 0.1 0",
      "inf 0.1 0.1 0.1 0"}},
    {"minus zero", {"Hypsometric", "-0"}, {"-0 0.1 0.1 0.1 0"}},
    {"a parameter", {"Hypsometric", "--set", "options=inverse", "0"}, {"0 0.8 0.8 0.9 0"}},
    {"a parameter behind the values",
     {"Hypsometric", "0", "1", "--set", "options=inverse"},
     {"0 0.8 0.8 0.9 0", "1 0.1 0.1 0.1 0"}},
    {"of two settings the last one holds",
     {"Hypsometric", "--set", "options=inverse", "--set", "options= -inverse", "0"},
     {"0 0.1 0.1 0.1 0"}},
    {"values behind the end of the options", {"Hypsometric", "--", "0.5"}, {"0.5 0.2 0.5 0 0"}},
};

TEST(Lookup, OneLineForEachValue) {
    for (LookupCase const& c : lookupCases) {
        Lines arguments = c.arguments;
        arguments.insert(arguments.begin(), "lookup");
        EXPECT_EQ(results(arguments), c.expected) << c.rule;
    }
}

TEST(Lookup, AMinusReadsValuesFromStandardInput) {
    EXPECT_EQ(results({"lookup", "Hypsometric", "-"}, "0.5\n\t0x1p-1 \r\n  nan"),
              (Lines{"0.5 0.2 0.5 0 0", "0.5 0.2 0.5 0 0", "nan 0.1 0.1 0.1 0"}));
    EXPECT_EQ(results({"lookup", "Hypsometric", "0", "-", "1"}, "0.5"),
              (Lines{"0 0.1 0.1 0.1 0", "0.5 0.2 0.5 0 0", "1 0.8 0.8 0.9 0"}));
    EXPECT_EQ(results({"lookup", "Hypsometric", "-"}, ""), Lines{});
}

TEST(Lookup, AHundredThousandValuesAreNoTrouble) {
    std::string input;
    for (int i = 0; i < 100'000; ++i)
        input += "0.5\n";
    Lines const lines = results({"lookup", "Hypsometric", "-"}, input);
    EXPECT_EQ(lines.size(), 100'000U);
    EXPECT_EQ(lines.back(), "0.5 0.2 0.5 0 0");
}

TEST(Lookup, JsonHoldsTheSameNumbers) {
    auto const json = nlohmann::ordered_json::parse(
        telmbench({"lookup", "TulElbeColorScheme", "--json", "0", "nan", "-inf"}).out);
    EXPECT_EQ(json.dump(),
              R"([{"value":0.0,"red":1.0,"green":0.51373,"blue":0.06667,"alpha":0.0},)"
              R"({"value":"nan","red":1.0,"green":0.51373,"blue":0.06667,"alpha":0.0},)"
              R"({"value":"-inf","red":1.0,"green":0.51373,"blue":0.06667,"alpha":0.0}])");
}

}  // namespace
