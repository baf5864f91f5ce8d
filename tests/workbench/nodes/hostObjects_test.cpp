#include "workbench/nodes/hostObjects.hpp"

#include <gtest/gtest.h>

#include "tests/workbench/nodes/Stage.hpp"
#include "workbench/nodes/Node.hpp"
#include "workbench/nodes/Viewer.hpp"

using namespace Orlo;
using namespace workbench;

namespace tests {
namespace {

std::vector<std::string> const CameraSlots{"observer={0,2.4,1}",
                                           "lookat={0,0,0}",
                                           "up={0,1,0}",
                                           "zoom=45",
                                           "near=0.02",
                                           "far=100",
                                           "options= -Orthographic",
                                           "time=0[0,1]@0.1",
                                           "::view->A View Object."};
std::vector<std::string> const ViewerSlots{"scene=A Scene Object.", "camera=A View Object.",
                                           "size=1046x650", "background=(0.04,0.05,0.07,1)",
                                           "::object->An Object."};
std::vector<std::string> const SceneSlots{"::scene->A Scene Object."};
std::vector<std::string> const ChartSlots{"::atlas=A Grid Object.", "::chart->A Chart Object."};
std::vector<std::string> const KeeperSlots{"::object->An Object."};

struct HostCase {
    char const* kind;
    char const* name;
    std::vector<std::string> const& slots;
};

TEST(HostObjects, AreWhatTheirKindOrTheirNameSays) {
    HostCase const table[] = {
        {"CameraControl", "Camera", CameraSlots},
        {"CameraControl", "AnotherCamera", CameraSlots},
        {"", "Camera", CameraSlots},
        {"", "Viewer1", ViewerSlots},
        {"", "Viewer23", ViewerSlots},
        {"Viewer", "Viewer2", ViewerSlots},
        {"", "DefaultScene", SceneSlots},
        {"", "ChartSelector", ChartSlots},
        {"", "Viewer", KeeperSlots},
        {"", "Viewer1FrameBuffer", KeeperSlots},
        {"", "CameraLens", KeeperSlots},
        {"", "CameraTripod", KeeperSlots},
        {"Headlight", "HeadShine", KeeperSlots},
        {"Create/Webserver", "WebTelm", KeeperSlots},
        {"", "qTelmMainWindow", KeeperSlots},
        {"", "qTelmStandardMetaViewer", KeeperSlots},
        {"No/Such", "thing", KeeperSlots},
        {"", "", KeeperSlots},
    };
    Nucleo::Intercube const context;
    for (HostCase const& each : table) {
        ObjectPtr const object = makeHostObject(each.kind, each.name, context);
        ASSERT_TRUE(object) << each.name;
        EXPECT_EQ(slotTexts(*object), each.slots) << each.kind << " " << each.name;
        EXPECT_EQ(object->Name(), each.name);
        VRequest request(new ValuePool);
        EXPECT_TRUE(object->request(request, 0, nullptr, nullptr)) << each.name;
        EXPECT_EQ(isViewer(*object), &each.slots == &ViewerSlots) << each.name;
    }
}

ObjectPtr providerOf(VObject const& object, char const* input) {
    return object.slot(input)->provider();
}

TEST(HostObjects, AViewerLooksThroughTheCameraOfItsContext) {
    Nucleo::Intercube const here, there;
    ObjectPtr const before = makeHostObject("", "Viewer1", here);
    ObjectPtr const elsewhere = makeHostObject("", "Viewer1", there);
    EXPECT_FALSE(providerOf(*before, "camera"));
    ObjectPtr const camera = makeHostObject("CameraControl", "Camera", here);
    ObjectPtr const after = makeHostObject("", "Viewer2", here);
    EXPECT_TRUE(providerOf(*before, "camera") == camera);
    EXPECT_TRUE(providerOf(*after, "camera") == camera);
    EXPECT_FALSE(providerOf(*elsewhere, "camera"));
}

TEST(HostObjects, TheFirstCameraOfAContextStays) {
    Nucleo::Intercube const context;
    ObjectPtr const first = makeHostObject("CameraControl", "Camera", context);
    ObjectPtr const viewer = makeHostObject("", "Viewer1", context);
    ObjectPtr const second = makeHostObject("CameraControl", "Camera2", context);
    EXPECT_TRUE(providerOf(*viewer, "camera") == first);
}

TEST(HostObjects, AViewerWhoseCameraIsGoneLooksAsANewCamera) {
    Stage stage;
    stage.furnish();
    Image const usual = stage.picture();
    stage.set("Camera", "zoom", "10");
    EXPECT_FALSE(stage.picture() == usual);
    stage.remove("Camera");
    EXPECT_TRUE(stage.picture() == usual);
}

TEST(HostObjects, ASceneMakesAnInputForEachMember) {
    Stage stage;
    VObject& scene = stage.host("DefaultScene");
    SlotPtr const input = addInput(scene, "FieldSlice.renderable");
    ASSERT_TRUE(input);
    EXPECT_TRUE(addInput(scene, "FieldSlice.renderable") == input);
    EXPECT_TRUE(addInput(scene, "Legend.renderable"));
    EXPECT_EQ(slotTexts(scene).size(), 3U);
}

TEST(HostObjects, AChartSelectorProvidesTheChartOfItsGrid) {
    Stage stage;
    stage.furnish();
    stage.host("ChartSelector");
    EXPECT_TRUE(stage.connect("ChartSelector", "::atlas", "theGrid"));
    EXPECT_TRUE(stage.connect("FieldSlice", "chart", "ChartSelector"));
    EXPECT_TRUE(stage.connect("Legend", "chart", "ChartSelector"));
    auto const chart = provided<ChartPtr>(stage["ChartSelector"], "::chart", stage.pool);
    ASSERT_TRUE(chart && chart->atlas);
    EXPECT_EQ(chart->atlas->name, "AnalyticUniformGrid");
}

}  // namespace
}  // namespace tests
