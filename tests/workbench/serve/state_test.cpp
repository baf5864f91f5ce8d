/// What the page is told of a network.
#include "tests/workbench/serve/StudioTest.hpp"

namespace workbench {
namespace {

using testing::HasSubstr;

using State = StudioTest;

TEST_F(State, TellsOfTheWhole) {
    Json const all = state();
    EXPECT_EQ(all["revision"], 1);
    EXPECT_EQ(all["title"], "small.telm");
    EXPECT_TRUE(all["undo"].is_null());
    EXPECT_EQ(all["plugins"][0]["file"], "prism_tinctures.telm");
    EXPECT_TRUE(all["plugins"][0]["error"].is_null());
    EXPECT_EQ(all["plugins"][0]["loaded"].get<std::string>().size(), 19U);
    EXPECT_EQ(all["viewers"][0],
              Json::parse(R"({"name":"Viewer1","width":60,"height":40,"error":null})"));
    EXPECT_EQ(all["nodes"].size(), 11U);
}

TEST_F(State, TellsWhatANodeIs) {
    Json const map = node("Map");
    EXPECT_EQ(map["key"], "Colormaps/RedGreen");
    EXPECT_EQ(map["status"], "icon");
    EXPECT_TRUE(map["isMap"]);
    EXPECT_FALSE(map["implicit"]);
    EXPECT_EQ(map["outputs"], Json::parse(R"([{"name":"colormap","type":"ColormapPtr"}])"));
    Json const camera = node("Camera");
    EXPECT_EQ(camera["x"], 10);
    EXPECT_EQ(camera["y"], 20);
    EXPECT_TRUE(camera["implicit"]);
    EXPECT_FALSE(camera["isMap"]);
    EXPECT_TRUE(node("Viewer1")["isViewer"]);
}

TEST_F(State, TellsOfParametersByTheirTypes) {
    Json const zoom = parameter("Camera", "zoom");
    EXPECT_EQ(zoom["type"], "double");
    EXPECT_EQ(zoom["text"], "45");
    EXPECT_EQ(zoom["min"], "1");
    EXPECT_EQ(zoom["max"], "140");
    EXPECT_EQ(zoom["contexts"], Json::parse(R"({"Viewer1":"40"})"));
    EXPECT_EQ(parameter("Slice", "mode")["choices"],
              Json::parse(R"(["Discrete","Interpolated","Smooth"])"));
    EXPECT_EQ(parameter("Camera", "options")["flags"],
              Json::parse(R"([{"name":"Orthographic","on":false}])"));
    EXPECT_EQ(parameter("Slice", "datarange")["range"], Json::parse("[0.0,1.0]"));
    EXPECT_EQ(parameter("Time", "value")["time"],
              Json::parse(R"({"value":0.0,"min":0.0,"max":1.0,"step":0.1})"));
    edit("{'do':'set','object':'Map','name':'startcolor','text':'(0.1,-2,3.5,1)'}");
    EXPECT_EQ(parameter("Map", "startcolor")["color"], Json::parse("[0.1,-2.0,3.5,1.0]"));
    EXPECT_TRUE(parameter("Map", "startcolor")["choices"].is_null());
}

TEST_F(State, TellsWhatIsConnectedAndWhatCouldBe) {
    Json const input = parameter("Slice", "colormap");
    EXPECT_EQ(input["connected"], Json::parse(R"({"object":"Map","parameter":"colormap"})"));
    EXPECT_EQ(input["candidates"], Json::parse(R"([{"object":"Map","parameter":"colormap"}])"));
    EXPECT_EQ(parameter("Camera", "time")["candidates"],
              Json::parse(R"([{"object":"Field","parameter":"time"},
                              {"object":"Time","parameter":"value"}])"));
    EXPECT_TRUE(parameter("Slice", "chart")["connected"].is_null());
}

/// Each candidate that the state names is one that the network takes.
TEST_F(State, EveryCandidateCanBeConnected) {
    int tried = 0;
    Json const all = state();
    for (Json const& each : all["nodes"])
        for (Json const& input : each["parameters"])
            for (Json const& candidate : input["candidates"]) {
                Json const change{{"do", "connect"},
                                  {"object", each["name"]},
                                  {"input", input["name"]},
                                  {"provider", candidate["object"]},
                                  {"parameter", candidate["parameter"]}};
                std::uint64_t const before = studio_.revision();
                std::uint64_t after = before;
                EXPECT_NO_THROW(after = studio_.edit(jsonText(change))) << change;
                if (after != before)
                    studio_.edit(R"({"do":"undo"})");
                ++tried;
            }
    EXPECT_GT(tried, 12);
}

TEST_F(State, ASceneOffersAPlaceToEachThatItCouldShow) {
    edit("{'do':'create','key':'Legend/ColorLegend','name':'Other','x':0,'y':0}");
    Json const place = parameter("DefaultScene", "Other.renderable");
    EXPECT_EQ(place["candidates"], Json::parse(R"([{"object":"Other","parameter":"renderable"}])"));
    EXPECT_TRUE(place["connected"].is_null());
}

TEST(Failing, NetworksAreServedAndTellOfEachFaultAtItsNode) {
    std::string text = SmallNetwork;
    auto const swap = [&](std::string const& from, std::string const& to) {
        text.replace(text.find(from), from.size(), to);
    };
    swap("Colormaps/RedGreen Map", "Colormaps/UserColors Map\nMap.depth=\"3\"");
    swap("Slice.transparency=\"0.5\"", "Slice.transparency=\"much\"");
    Studio studio({.text = text, .file = "failing.telm"});
    Json const state = Json::parse(studio.state());
    EXPECT_GE(state["complaints"].size(), 2U);
    std::map<std::string, Json> nodes;
    for (Json const& each : state["nodes"])
        nodes[each["name"]] = each;
    EXPECT_TRUE(nodes["Map"]["missing"]);
    EXPECT_TRUE(nodes["Map"]["isMap"]);
    EXPECT_THAT(nodes["Map"]["faults"][0].get<std::string>(), HasSubstr("no entry"));
    EXPECT_EQ(nodes["Map"]["parameters"][0]["text"], "3");
    EXPECT_THAT(jsonText(nodes["Slice"]["faults"]), HasSubstr("'much' is no value"));
    EXPECT_THAT(jsonText(nodes["Slice"]["faults"]), HasSubstr("there is no colour map"));
    EXPECT_THAT(jsonText(nodes["Legend"]["faults"]), HasSubstr("there is no colour map"));
    EXPECT_EQ(studio.picture("Viewer1")->width(), 60);

    studio.edit(R"({"do":"set","object":"Slice","name":"transparency","text":"1"})");
    EXPECT_EQ(Json::parse(studio.state())["complaints"].size(), state["complaints"].size() - 1);
    studio.edit(R"({"do":"replace","object":"Map","key":"Colormaps/Glow"})");
    EXPECT_TRUE(Json::parse(studio.state())["complaints"].empty()) << studio.state();
    EXPECT_EQ(studio.text().find("Map.depth"), std::string::npos);
}

}  // namespace
}  // namespace workbench
