/// Changes of a network: what they do to its text, and that the pictures follow it.
#include "tests/workbench/serve/StudioTest.hpp"

namespace workbench {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// The lines of `after` that `before` lacks, and, behind "-", those of `before` that
/// `after` lacks.
std::vector<std::string> difference(std::string const& before, std::string const& after) {
    auto const linesOf = [](std::string const& text) {
        std::multiset<std::string> lines;
        for (Line const& line : Script::read(text).lines)
            if (!line.text.empty())
                lines.insert(line.text);
        return lines;
    };
    std::multiset<std::string> const old = linesOf(before);
    std::multiset<std::string> const now = linesOf(after);
    std::vector<std::string> result;
    std::ranges::set_difference(now, old, std::back_inserter(result));
    std::vector<std::string> gone;
    std::ranges::set_difference(old, now, std::back_inserter(gone));
    for (std::string const& line : gone)
        result.push_back("-" + line);
    return result;
}

struct Case {
    char const* rule;
    char const* change;
    char const* label;
    std::vector<std::string> lines;
};

std::vector<Case> const Cases{
    {"a value is written into its line",
     "{'do':'set','object':'Slice','name':'transparency','text':'1'}",
     "set Slice.transparency",
     {"Slice.transparency=\"1\"", "-Slice.transparency=\"0.5\""}},
    {"a value of a viewer is written into its own",
     "{'do':'set','object':'Camera','name':'zoom','context':'Viewer1','text':'30'}",
     "set Camera.zoom{Viewer1}",
     {"Camera.zoom{Viewer1}=\"30\"", "-Camera.zoom{Viewer1}=\"40\""}},
    {"a value that has no line gets one",
     "{'do':'set','object':'Map','name':'startcolor','text':'(0,0,1,1)'}",
     "set Map.startcolor",
     {"Map.startcolor=\"(0,0,1,1)\""}},
    {"a reset takes the values away, those of viewers too",
     "{'do':'reset','object':'Camera','name':'zoom'}",
     "reset Camera.zoom",
     {"-Camera.zoom=\"45\"", "-Camera.zoom{Viewer1}=\"40\""}},
    {"a node is moved",
     "{'do':'move','object':'Camera','x':11.5,'y':-20}",
     "move Camera",
     {"Camera.qTelm::Net::x=\"11.5\"", "Camera.qTelm::Net::y=\"-20\"",
      "-Camera.qTelm::Net::x=\"10\"", "-Camera.qTelm::Net::y=\"20\""}},
    {"a node is created under the name of its entry",
     "{'do':'create','key':'Colormaps/Glow','x':1,'y':2}",
     "create Colormaps/Glow",
     {"# DELETE IF EXISTS Glow", "<>Glow", "Colormaps/Glow Glow", "Glow()",
      "Glow.qTelm::Net::ExpertLevel=\"0\"",
      "Glow.qTelm::Net::status=\"visible{visible}{icon}{hidden}\"", "Glow.qTelm::Net::x=\"1\"",
      "Glow.qTelm::Net::y=\"2\""}},
    {"or under another name",
     "{'do':'create','key':'Strand/Grid','name':'Second','x':0,'y':0}",
     "create Strand/Grid",
     {"# DELETE IF EXISTS Second", "<>Second", "Second()", "Second.qTelm::Net::ExpertLevel=\"0\"",
      "Second.qTelm::Net::status=\"visible{visible}{icon}{hidden}\"", "Second.qTelm::Net::x=\"0\"",
      "Second.qTelm::Net::y=\"0\"", "Strand/Grid Second"}},
    {"a deleted node goes with its connections",
     "{'do':'delete','object':'Legend'}",
     "delete Legend",
     {"-# DELETE IF EXISTS Legend", "-<>Legend", "-DefaultScene.Legend.renderable=>Legend",
      "-Legend()", "-Legend.colormap=>Map", "-Legend/ColorLegend Legend"}},
    {"an input is connected",
     "{'do':'connect','object':'Camera','input':'time','provider':'Time','parameter':'value'}",
     "connect Camera.time",
     {"Camera.time=>Time.value"}},
    {"an output that needs no name gets none",
     "{'do':'connect','object':'Grid','input':'spacetime','provider':'Bundle',"
     "'parameter':'bundle'}",
     "connect Grid.spacetime",
     {}},
    {"a connection is cut",
     "{'do':'disconnect','object':'Legend','input':'colormap'}",
     "disconnect Legend.colormap",
     {"-Legend.colormap=>Map"}},
    {"another map takes the place of one, with its connections",
     "{'do':'replace','object':'Map','key':'Colormaps/Glow'}",
     "replace Map",
     {"Colormaps/Glow Map", "-Colormaps/RedGreen Map"}},
    {"what the next one has no input for is cut",
     "{'do':'replace','object':'Slice','key':'Legend/ColorLegend'}",
     "replace Slice",
     {"Legend/ColorLegend Slice", "-Display/OrthoSlice Slice", "-Slice.scalarfield=>Field",
      "-Slice.transparency=\"0.5\""}},
};

class Changes : public StudioTest, public testing::WithParamInterface<std::size_t> {};

TEST_P(Changes, AreLinesOfTheScript) {
    Case const& each = Cases[GetParam()];
    std::string const before = studio_.text();
    std::uint64_t const revision = studio_.revision();
    EXPECT_EQ(edit(each.change), revision + (each.lines.empty() ? 0 : 1)) << each.rule;
    EXPECT_EQ(difference(before, studio_.text()), each.lines) << each.rule;
    EXPECT_TRUE(state()["complaints"].empty()) << each.rule << state()["complaints"];
    expectTextAndPicturesAgree();
    if (each.lines.empty())
        return;
    EXPECT_EQ(state()["undo"], each.label) << each.rule;
    std::string const after = studio_.text();
    edit("{'do':'undo'}");
    EXPECT_EQ(studio_.text(), before) << each.rule;
    EXPECT_EQ(state()["redo"], each.label) << each.rule;
    expectTextAndPicturesAgree();
    edit("{'do':'redo'}");
    EXPECT_EQ(studio_.text(), after) << each.rule;
}

INSTANTIATE_TEST_SUITE_P(All, Changes, testing::Range(std::size_t{0}, Cases.size()));

using Editing = StudioTest;

TEST_F(Editing, ConnectionsStandInTheirOrder) {
    edit("{'do':'disconnect','object':'Legend','input':'colormap'}");
    edit(
        "{'do':'connect','object':'Legend','input':'colormap','provider':'Map',"
        "'parameter':'colormap'}");
    EXPECT_EQ(studio_.text(), SmallNetwork);
    expectTextAndPicturesAgree();
}

TEST_F(Editing, ANewNodeIsWiredAndShown) {
    edit("{'do':'create','key':'Legend/ColorLegend','x':0,'y':0}");
    edit(
        "{'do':'connect','object':'ColorLegend','input':'colormap','provider':'Map',"
        "'parameter':'colormap'}");
    auto const before = studio_.picture("Viewer1");
    edit("{'do':'set','object':'ColorLegend','name':'position','text':'0.5x0.1'}");
    edit(
        "{'do':'connect','object':'DefaultScene','input':'ColorLegend.renderable',"
        "'provider':'ColorLegend','parameter':'renderable'}");
    EXPECT_NE(*studio_.picture("Viewer1"), *before);
    expectTextAndPicturesAgree();
    edit("{'do':'delete','object':'ColorLegend'}");
    EXPECT_EQ(*studio_.picture("Viewer1"), *before);
    EXPECT_EQ(studio_.text(), SmallNetwork);
}

TEST_F(Editing, AReplacedMapKeepsWhatTheNextOneHasToo) {
    edit("{'do':'create','key':'Colormaps/LogRedGreen','name':'Log','x':0,'y':0}");
    edit("{'do':'set','object':'Log','name':'startcolor','text':'(0,0,1,1)'}");
    edit("{'do':'replace','object':'Log','key':'Colormaps/RedGreen'}");
    EXPECT_THAT(studio_.text(), HasSubstr("Log.startcolor=\"(0,0,1,1)\""));
    edit("{'do':'replace','object':'Log','key':'Colormaps/Glow'}");
    EXPECT_THAT(studio_.text(), Not(HasSubstr("Log.startcolor=")));
    EXPECT_TRUE(state()["complaints"].empty());
}

TEST_F(Editing, TheSameValueAgainIsNoChange) {
    std::uint64_t const revision = studio_.revision();
    EXPECT_EQ(edit("{'do':'set','object':'Slice','name':'transparency','text':'0.5'}"), revision);
    EXPECT_TRUE(state()["undo"].is_null());
}

TEST_F(Editing, ADragIsOneStep) {
    auto const drag = [this](char const* text, char const* word) {
        edit(std::string("{'do':'set','object':'Slice','name':'transparency','text':'") + text +
             "','drag':'" + word + "'}");
    };
    drag("0.6", "one");
    drag("0.7", "one");
    drag("0.8", "two");
    edit("{'do':'undo'}");
    EXPECT_EQ(parameter("Slice", "transparency")["text"], "0.7");
    edit("{'do':'undo'}");
    EXPECT_EQ(studio_.text(), SmallNetwork);
}

TEST_F(Editing, AChangeBehindAnUndoForgetsWhatWasUndone) {
    edit("{'do':'set','object':'Slice','name':'transparency','text':'0.6'}");
    edit("{'do':'undo'}");
    edit("{'do':'set','object':'Slice','name':'transparency','text':'0.7'}");
    EXPECT_EQ(refusal("{'do':'redo'}"), "there is nothing to redo");
}

TEST_F(Editing, AMovedNodeLeavesThePictureAlone) {
    auto const before = studio_.picture("Viewer1");
    edit("{'do':'move','object':'Camera','x':1,'y':2}");
    EXPECT_EQ(studio_.picture("Viewer1"), before) << "it was drawn anew";
}

TEST(UndoOf, ALargeNetworkRemembersItsLastStepsOnly) {
    struct {
        char const* rule;
        std::size_t bytes;
        int steps;
    } const table[] = {{"a text of the usual size", 0, 20},
                       {"a text of which two fit", 3'500'000, 2},
                       {"a text of which none fits", 9'000'000, 1}};
    for (auto const& each : table) {
        Studio studio({.text = SmallNetwork + ("# " + std::string(each.bytes, 'x')) + "\n",
                       .file = "large.telm"});
        for (int x = 1; x <= 20; ++x)
            studio.edit(R"({"do":"move","object":"Map","x":)" + std::to_string(x) + R"(,"y":2})");
        int steps = 0;
        for (; !Json::parse(studio.state())["undo"].is_null(); ++steps)
            studio.edit(R"({"do":"undo"})");
        EXPECT_EQ(steps, each.steps) << each.rule;
    }
}

TEST_F(Editing, EachChangeAgreesWithItsTextInAnyOrder) {
    for (Case const& each : Cases) {
        refusal(each.change);  // some are not possible behind others
        expectTextAndPicturesAgree();
    }
    while (refusal("{'do':'undo'}").empty()) {
    }
    EXPECT_EQ(studio_.text(), SmallNetwork);
    expectTextAndPicturesAgree();
}

}  // namespace
}  // namespace workbench
