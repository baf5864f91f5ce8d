#include <nlohmann/json.hpp>

#include "tests/workbench/cli/telmbench.hpp"

namespace {

using namespace tests;
using Json = nlohmann::ordered_json;

TEST(Describe, TextTellsParametersSizeAndHelp) {
    Lines const lines = results({"describe", "Hypsometric"});
    ASSERT_GE(lines.size(), 8U);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 7),
              (Lines{
                  "Colormaps/Hypsometric",
                  "    20 colours over the values from 0 to 1",
                  "",
                  "Parameters, with their texts between quotes:",
                  "    name       type      default      expert level  min  max",
                  "    'options'  FlagList  ' -inverse'  1             -    -",
                  "",
              }));
    EXPECT_EQ(lines[7], "Help:");
    EXPECT_EQ(lines[8],
              "    A colormap specifically useful for Bathymetric and topographic displays, "
              "providing  bluish colors for low values and green/yellow/brownish tones for large "
              "values. ");
}

TEST(Describe, AnEntryWithoutParametersSaysSo) {
    EXPECT_EQ(results({"describe", "TulElbeColorScheme"}),
              (Lines{
                  "Colormaps/TulElbeColorScheme",
                  "    67 colours over the values from 0 to 1",
                  "",
                  "No parameters.",
                  "",
                  "Help:",
                  "    TulLass Color Scheme",
              }));
}

TEST(Describe, JsonTellsTheSame) {
    Json json = Json::parse(telmbench({"describe", "Colormaps/Topographic", "--json"}).out);
    EXPECT_EQ(json["key"], "Colormaps/Topographic");
    EXPECT_EQ(json["size"], 20);
    EXPECT_EQ(json["min"], 0);
    EXPECT_EQ(json["max"], 1);
    EXPECT_EQ(json["outputs"].dump(), R"(["colormap"])");
    EXPECT_EQ(json["parameters"].dump(),
              R"([{"name":"options","type":"FlagList","default":" -inverse","expertLevel":1,)"
              R"("min":null,"max":null}])");
    std::string const shortHelp = json["help"]["short"];
    std::string const link = json["help"]["link"];
    std::string const longHelp = json["help"]["long"];
    EXPECT_TRUE(longHelp.starts_with(shortHelp));
    EXPECT_NE(longHelp.find("<A HREF=\"" + link + "\">"), std::string::npos);
}

TEST(Describe, AFullKeyAndABareNameMeanTheSameEntry) {
    EXPECT_EQ(results({"describe", "Topographic"}), results({"describe", "Colormaps/Topographic"}));
}

TEST(Describe, ParametersStandInTheirOrderWithTheirLimits) {
    std::string const plugin = fileBeside("talking_plugin.telm");
    Json const json =
        Json::parse(telmbench({"--plugin", plugin, "describe", "Talker", "--json"}).out);
    EXPECT_EQ(json["parameters"].dump(),
              R"([{"name":"words","type":"int","default":"3","expertLevel":2,"min":1,"max":9},)"
              R"({"name":"a loudness","type":"double","default":"0.5","expertLevel":0,)"
              R"("min":null,"max":"inf"}])");
}

}  // namespace
