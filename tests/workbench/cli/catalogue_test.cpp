#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/workbench/cli/telmbench.hpp"

namespace {

using namespace tests;
using Json = nlohmann::ordered_json;

Json catalogue() {
    return Json::parse(telmbench({"catalogue", "--json"}).out);
}

Json entry(std::string const& key) {
    for (Json const& each : catalogue())
        if (each["key"] == key)
            return each;
    ADD_FAILURE() << "no entry " << key;
    return {};
}

TEST(Catalogue, JsonTellsAllThatAnEntrySaysOfItselfAndWhoseItIs) {
    Json topographic = entry("Colormaps/Topographic");
    EXPECT_EQ(topographic["plugin"], fileBeside("prism_tinctures.telm"));
    topographic.erase("plugin");
    EXPECT_EQ(topographic.dump(2), R"({
  "key": "Colormaps/Topographic",
  "order": 0,
  "preferences": [
    "hypsometric",
    "topographic"
  ],
  "description": "Provides a color map with only hypsometric tints",
  "tags": [
    "General",
    "Tidewatch"
  ],
  "source": "prism/tinctures/Hypsometric",
  "date": "Mar 22 2024",
  "todo": "todo",
  "module": "prism_tinctures"
})");
}

TEST(Catalogue, TextTellsTheSame) {
    Lines const lines = results({"catalogue"});
    auto const at = std::ranges::find(lines, "Colormaps/Topographic");
    ASSERT_GE(lines.end() - at, 8);
    EXPECT_EQ(Lines(at, at + 8), (Lines{
                                     "Colormaps/Topographic",
                                     "    Provides a color map with only hypsometric tints",
                                     "    order        0",
                                     "    preferences  hypsometric, topographic",
                                     "    tags         General;Tidewatch",
                                     "    source       prism/tinctures/Hypsometric",
                                     "    date         Mar 22 2024",
                                     "    to do        todo",
                                 }));
}

TEST(Catalogue, BothFormsHaveTheSameEntriesInTheSameOrder) {
    Lines keys;
    for (Json const& each : catalogue())
        keys.push_back(each["key"]);
    Lines const lines = results({"catalogue"});
    Lines shown;
    std::ranges::copy_if(lines, std::back_inserter(shown),
                         [](std::string const& line) { return line.starts_with("Colormaps/"); });
    EXPECT_EQ(shown, keys);
    EXPECT_EQ(lines.back(), std::to_string(keys.size()) + " entries");
}

/// The sources register last to first, the entries of one source first to last.
TEST(Catalogue, TheOrderIsThatOfRegistration) {
    Lines keys;
    for (Json const& each : catalogue())
        keys.push_back(each["key"]);
    auto place = keys.begin();
    for (char const* const name : {"BathymetricColors", "Hypsometric", "TopoBathy", "Topographic",
                                   "TulLassColorScheme", "TulElbeColorScheme"}) {
        place = std::find(place, keys.end(), std::string("Colormaps/") + name);
        EXPECT_NE(place, keys.end()) << name;
    }
}

TEST(Catalogue, AnEntryWithoutTextsHasNullInTheirPlace) {
    std::string const plugin = fileBeside("talking_plugin.telm");
    Json entries = Json::parse(telmbench({"--plugin", plugin, "catalogue", "--json"}).out);
    entries[0].erase("plugin");
    EXPECT_EQ(entries.dump(), R"([{"key":"Colormaps/Talker","order":7,"preferences":[],)"
                              R"("description":"Says \"hello\".","tags":[],"source":null,)"
                              R"("date":null,"todo":null,"module":"talking_plugin"}])");
}

TEST(Catalogue, ADescriptionThatIsSetButEmptyIsNotLikeNone) {
    EXPECT_EQ(entry("Colormaps/DopplerMap")["description"], "");
    EXPECT_TRUE(entry("Colormaps/Glow")["description"].is_null());
    Lines const lines = results({"catalogue"});
    auto const lineBehind = [&](char const* key) {
        auto const at = std::ranges::find(lines, std::string("Colormaps/") + key);
        return lines.end() - at > 1 ? at[1] : "no entry";
    };
    EXPECT_EQ(lineBehind("DopplerMap"), "    (an empty description)");
    EXPECT_EQ(lineBehind("Glow"), "    order        2000");
}

}  // namespace
