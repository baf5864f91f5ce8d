#include <gtest/gtest.h>

#include "tests/workbench/nodes/Stage.hpp"
#include "workbench/scene/Renderable.hpp"

using namespace workbench;

namespace tests {
namespace {

/// The parameters of the object, as far as a picture straight onto the slice
/// tells them apart.
TEST(SliceNodes, TheObjectHandsItsParametersOn) {
    Stage stage;
    stage.add("field", new FieldSource(std::make_shared<FunctionField>(
                           UniformGrid{3, 1.0},
                           [](int i, int j, int k) { return (100.0 * i + 10 * j + k) / 255; })));
    stage.add("map", new MapSource);
    stage.make("Display/OrthoSlice", "slice");
    ASSERT_TRUE(stage.connect("slice", "scalarfield", "field"));
    ASSERT_TRUE(stage.connect("slice", "colormap", "map"));
    auto const intersect = [&](int normal) {
        auto const shown = provided<RenderablePtr>(stage["slice"], "renderable", stage.pool);
        return *shown->intersect(rayAt(normal, 0.6, -1));
    };
    EXPECT_NEAR(intersect(1).color.red() * 255, 170, 0.01);  // Y, interpolated, in the middle
    stage.set("slice", "mode", "Discrete");
    EXPECT_NEAR(intersect(1).color.red() * 255, 210, 0.01);
    stage.set("slice", "orientation", "Z{X}{Y}{Z}");
    EXPECT_NEAR(intersect(2).color.red() * 255, 201, 0.01);
    stage.set("slice", "position", "1");
    EXPECT_NEAR(intersect(2).color.red() * 255, 202, 0.01);
    stage.set("slice", "orientation", "X");
    EXPECT_NEAR(intersect(0).color.red() * 255, 220, 0.01);
    stage.set("slice", "datarange", "0,2");
    EXPECT_NEAR(intersect(0).color.red() * 255, 110, 0.01);
    stage.set("slice", "datarange", "0,7");
    EXPECT_NEAR(intersect(0).color.red() * 255, 31, 0.01);
    stage.set("slice", "textureprecision", "16bit");
    EXPECT_NEAR(intersect(0).color.red() * 255, 31.43, 0.01);
    EXPECT_EQ(intersect(0).opacity, 1.0);
}

TEST(SliceNodes, TransparencyIsTheirOpacityWithin0And1) {
    struct {
        char const* text;
        double opacity;
    } const table[] = {{"1", 1}, {"0", 0},   {"0.25", 0.25}, {"-1", 0},
                       {"7", 1}, {"inf", 1}, {"nan", 0}};
    Stage stage;
    stage.furnish();
    for (auto const& each : table) {
        stage.set("FieldSlice", "transparency", each.text);
        auto const shown = provided<RenderablePtr>(stage["FieldSlice"], "renderable", stage.pool);
        EXPECT_EQ(shown->intersect(rayAt(1, 0, 0))->opacity, each.opacity) << each.text;
    }
}

TEST(SliceNodes, WithoutAFieldOrAMapThereIsNothingToShow) {
    for (char const* missing : {"theBundle", "theGrid", "theField", "map"}) {
        Stage stage;
        stage.furnish();
        EXPECT_TRUE(provided<RenderablePtr>(stage["FieldSlice"], "renderable", stage.pool));
        stage.remove(missing);
        EXPECT_FALSE(provided<RenderablePtr>(stage["FieldSlice"], "renderable", stage.pool))
            << missing;
    }
}

}  // namespace
}  // namespace tests
