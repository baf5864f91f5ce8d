#include <gtest/gtest.h>

#include "tests/workbench/nodes/Stage.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/nodes/Node.hpp"
#include "workbench/nodes/values.hpp"
#include "workbench/session/parameters.hpp"

using namespace Orlo;
using namespace workbench;

namespace tests {
namespace {

class Placeholders : public testing::Test {
protected:
    Stage stage;
};

struct Kept {
    char const* first;    ///< the first text of a parameter
    char const* another;  ///< a text of the same form
    char const* wrong;    ///< one of another form
};

TEST_F(Placeholders, AParameterKeepsTextsOfItsFirstForm) {
    Kept const table[] = {
        {"25", "0.5", "many"},
        {"true", "false", "1"},
        {"{0,0,-1}", "{1,2,3}", "{1,2}"},
        {"[{0,0,0};{0,0,0}]", "[{-1,-1,-1};{1,1,1}]", "{0,0,0}"},
        {"0,1", "-5,5", "0"},
        {"0[0,1]@0.1", "0.5[0,1]@0.1", "0.5"},
        {"(1,1,1,1)", "(0,0.5,0,1)", "(1,1,1)"},
        {"a{a}{b}", "b{a}{b}", "c{a}{b}"},
        {" -Linked", " Linked", " Unlinked"},
        {"1280x960", "640x480", "640"},
        {"none@localhost", "some@where", "nowhere"},
        {"", "", "something"},
    };
    VObject& object = stage.host("Scribe");
    int count = 0;
    for (Kept const& each : table) {
        std::string const name = "p" + std::to_string(count++);
        ASSERT_TRUE(addKept(object, name, each.first)) << each.first;
        EXPECT_EQ(object.slot(name)->parameter()->ownValue()->text(), each.first);
        setParameter(object, name, each.another);
        EXPECT_EQ(object.slot(name)->parameter()->ownValue()->text(), each.another);
        EXPECT_THROW(setParameter(object, name, each.wrong), CallError) << each.wrong;
        EXPECT_EQ(object.slot(name)->parameter()->ownValue()->text(), each.another);
    }
}

TEST_F(Placeholders, ATextOfNoFormKeepsAnyText) {
    VObject& object = stage.host("Viewer1FrameBuffer");
    addKept(object, "buffer", "A Frame buffer.");
    setParameter(object, "buffer", "45");
    EXPECT_EQ(object.slot("buffer")->parameter()->ownValue()->text(), "45");
}

TEST_F(Placeholders, ParametersStandInTheOrderInWhichTheyCame) {
    VObject& object = stage.host("Scribe");
    for (char const* name : {"z", "a", "m"})
        addKept(object, name, "1");
    EXPECT_EQ(slotTexts(object),
              (std::vector<std::string>{"::object->An Object.", "z=1", "a=1", "m=1"}));
}

TEST_F(Placeholders, AKeptParameterHasAValueForEachContext) {
    VObject& object = stage.host("Scribe");
    addKept(object, "history", "100");
    setParameter(object, "history", "7", stage.pool);
    VParameter const& parameter = *object.slot("history")->parameter();
    EXPECT_EQ(valueInPool(parameter, stage.pool, false)->text(), "7");
    EXPECT_EQ(valueInPool(parameter, new ValuePool("Viewer2"), false)->text(), "100");
}

TEST_F(Placeholders, AParameterThatIsThereStaysAsItIs) {
    VObject& camera = stage.host("Camera");
    SlotPtr const zoom = camera.slot("zoom");
    EXPECT_TRUE(addKept(camera, "zoom", "true") == zoom);
    EXPECT_EQ(zoom->parameter()->ownValue()->text(), "45");
}

TEST_F(Placeholders, AnOutputIsNoParameter) {
    EXPECT_FALSE(addKept(stage.make("Create/Range100", "r"), "range", "0,1"));
    EXPECT_FALSE(addInput(stage["r"], "range"));
}

TEST_F(Placeholders, AllObjectsOfTheHostKeepWhatTheyDoNotKnow) {
    for (char const* name : {"Camera", "Viewer1", "DefaultScene", "ChartSelector", "Network"}) {
        EXPECT_TRUE(keepsAll(stage.host(name))) << name;
        EXPECT_TRUE(addKept(stage[name], "anything", "A thing.")) << name;
    }
    for (char const* key : {"CreateBundle/RadialScalarField", "Strand/Grid", "Strand/Scalarfield",
                            "Display/OrthoSlice", "Legend/ColorLegend", "Legend/ShowRange",
                            "Create/GlobalTime", "Create/Range100"}) {
        EXPECT_TRUE(keepsAll(stage.make(key, key))) << key;
        EXPECT_TRUE(addKept(stage[key], "Threads", "")) << key;
    }
}

TEST_F(Placeholders, AnObjectOfAPlugInKeepsNothing) {
    VObject& map = stage.add("map", new MapSource);
    EXPECT_FALSE(keepsAll(map));
    EXPECT_FALSE(addKept(map, "anything", "1"));
    EXPECT_FALSE(addInput(map, "anything"));
    EXPECT_TRUE(addInput(map, "blue"));
    EXPECT_EQ(map.slots().size(), 2U);
}

TEST_F(Placeholders, APlaceholderTakesConnectionsOfAnyKind) {
    stage.host("WebTelm", "Create/Webserver");
    stage.host("Viewer1FrameBuffer");
    stage.host("Viewer1");
    stage.make("Create/GlobalTime", "GlobalTime");
    EXPECT_TRUE(stage.connect("WebTelm", "framebuffer", "Viewer1FrameBuffer"));
    EXPECT_TRUE(stage.connect("WebTelm", "time", "GlobalTime", "value"));
    EXPECT_TRUE(stage.connect("Viewer1FrameBuffer", "viewer", "Viewer1"));
    EXPECT_TRUE(stage["WebTelm"].slot("framebuffer")->provider());
}

TEST_F(Placeholders, ACatalogueKindTakesNoInputThatItWasNotMadeWith) {
    stage.make("Display/OrthoSlice", "slice");
    EXPECT_FALSE(addInput(stage["slice"], "vectorfield"));
    EXPECT_TRUE(addInput(stage["slice"], "scalarfield") == stage["slice"].slot("scalarfield"));
}

}  // namespace
}  // namespace tests
