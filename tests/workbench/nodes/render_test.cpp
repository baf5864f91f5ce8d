#include <gtest/gtest.h>

#include "tests/workbench/nodes/Stage.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/nodes/Viewer.hpp"
#include "workbench/scene/Renderable.hpp"

using namespace Orlo;
using namespace workbench;

namespace tests {
namespace {

Rgba8 const Background = opaque({0.04, 0.05, 0.07, 1.0});

/// A furnished stage whose camera looks straight down on the slice.
class Rendering : public testing::Test {
protected:
    Rendering() : map(stage.furnish()) {
        stage.set("Viewer1", "size", "101x101");
        stage.set("Camera", "observer", "{0,3,0}");
        stage.set("Camera", "up", "{0,0,-1}");
        stage.set("Legend", "width", "0");
    }

    Rgba8 middle() const { return stage.picture().at(50, 50); }

    Stage stage;
    MapSource& map;
};

TEST_F(Rendering, ThePictureHasTheSizeOfItsViewer) {
    for (char const* size : {"1x1", "3x2", "101x101", "200x100.9"}) {
        stage.set("Viewer1", "size", size);
        Image const image = stage.picture();
        Pair expected;
        ASSERT_TRUE(VValueTrait<Pair>::setValueFromText(expected, size));
        EXPECT_EQ(image.width(), static_cast<int>(expected.first));
        EXPECT_EQ(image.height(), static_cast<int>(expected.second));
    }
}

TEST_F(Rendering, ASizeThatNoPictureHasIsRefused) {
    for (char const* size :
         {"0x100", "100x0", "-5x5", "0.9x5", "nanx5", "5xinf", "16385x1", "1e300x1"}) {
        stage.set("Viewer1", "size", size);
        try {
            stage.picture();
            ADD_FAILURE() << size;
        } catch (WorkError const& error) {
            EXPECT_EQ(std::string(error.what()),
                      "the size of 'Viewer1' is " +
                          stage["Viewer1"].slot("size")->parameter()->ownValue()->text() +
                          "; a picture has 1 to 16384 pixels a side, such as 1046x650");
        }
    }
}

TEST_F(Rendering, OnlyAViewerMakesPictures) {
    try {
        render(stage["Camera"], stage.pool);
        ADD_FAILURE();
    } catch (CallError const& error) {
        EXPECT_STREQ(error.what(), "'Camera' is no viewer; only viewers make pictures");
    }
}

TEST_F(Rendering, TheSliceIsSeenInTheColorsOfItsMap) {
    stage.set("theBundle", "gridsize", "33");
    EXPECT_EQ(middle(), opaque(TellingMap(0.5).getColor(1.0)));
    Image const image = stage.picture();
    EXPECT_EQ(image.at(0, 0), Background);
    // the far corner of the slice, where the hill is flat at 0
    int corner = 0;
    while (corner < 50 && image.at(corner, corner) == Background)
        ++corner;
    EXPECT_LE(image.at(corner, corner)[0], 2);
    EXPECT_GE(image.at(corner, corner)[1], 253);
    EXPECT_EQ(image.at(corner, corner)[2], 128);
}

TEST_F(Rendering, TheBackgroundIsThatOfTheViewer) {
    stage.set("Viewer1", "background", "(0,1,2,0)");
    EXPECT_EQ(stage.picture().at(0, 0), (Rgba8{0, 255, 255, 255}));
}

TEST_F(Rendering, AContextHasItsOwnValues) {
    PoolPtr const other = new ValuePool("Viewer2");
    Image const before = stage.picture();
    stage.set("Camera", "zoom", "20", other);
    EXPECT_EQ(stage.picture(), before);
    Image const close = render(stage["Viewer1"], other);
    EXPECT_FALSE(close == before);
    stage.set("Camera", "zoom", "20");
    EXPECT_EQ(stage.picture(), close);
    stage.set("map", "blue", "1", other);
    EXPECT_EQ(stage.picture(), close);
    EXPECT_EQ(render(stage["Viewer1"], other).at(50, 50)[2], 255);
}

TEST_F(Rendering, EachCameraParameterShapesTheView) {
    struct {
        char const* name;
        char const* text;
    } const table[] = {{"observer", "{0,2,0.5}"}, {"lookat", "{0.3,0,0}"},
                       {"up", "{1,0,1}"},         {"zoom", "60"},
                       {"near", "3.01"},          {"far", "2.9"}};
    for (auto const& each : table) {
        Image const before = stage.picture();
        std::string const usual = stage["Camera"].slot(each.name)->parameter()->ownValue()->text();
        stage.set("Camera", each.name, each.text);
        EXPECT_FALSE(stage.picture() == before) << each.name;
        stage.set("Camera", each.name, usual);
        EXPECT_EQ(stage.picture(), before) << each.name;
    }
    stage.set("Camera", "observer", "{0,3,2}");
    Image const perspective = stage.picture();
    stage.set("Camera", "options", " Orthographic");
    EXPECT_FALSE(stage.picture() == perspective);
}

TEST_F(Rendering, WhatIsTooNearOrTooFarIsNotShown) {
    stage.set("Camera", "near", "3.01");
    EXPECT_EQ(middle(), Background);
    stage.set("Camera", "near", "3");
    stage.set("Camera", "far", "3");
    EXPECT_FALSE(middle() == Background);
    stage.set("Camera", "observer", "{0,-3,0}");
    stage.set("Camera", "lookat", "{0,-9,0}");
    EXPECT_EQ(middle(), Background);
}

TEST_F(Rendering, OpacityMixesWithWhatIsBehind) {
    stage.set("theBundle", "gridsize", "33");
    stage.set("Viewer1", "background", "(0,0,0,1)");
    stage.set("FieldSlice", "transparency", "0.5");
    EXPECT_EQ(middle(), opaque({0.5, 0.0, 0.25, 1.0}));
    stage.set("FieldSlice", "transparency", "0");
    EXPECT_EQ(middle(), (Rgba8{0, 0, 0, 255}));
}

TEST_F(Rendering, TheNearerSliceHidesTheFartherWhateverTheirOrder) {
    auto* const another = new MapSource;
    stage.add("another", ObjectPtr(WeakPtr<MapSource, VManagedObjectBase>(another)));
    stage.set("another", "blue", "1");
    stage.make("Display/OrthoSlice", "above");
    stage.connect("above", "scalarfield", "theField");
    stage.connect("above", "colormap", "another");
    stage.connect("DefaultScene", "above.renderable", "above");
    stage.set("above", "position", "0.5");
    EXPECT_EQ(middle()[2], 255);
    stage.set("above", "position", "-0.5");
    EXPECT_EQ(middle()[2], 128);
    stage.set("FieldSlice", "transparency", "0.5");
    EXPECT_EQ(middle()[2], 191);
}

TEST_F(Rendering, AMapIsUpdatedOnceForAllItsConsumers) {
    stage.picture();
    EXPECT_EQ(map.updates, 1);
    stage.picture();
    EXPECT_EQ(map.updates, 1);
    stage.set("FieldSlice", "datarange", "0,2");
    stage.picture();
    EXPECT_EQ(map.updates, 1);
    stage.set("map", "blue", "0.25");
    stage.picture();
    EXPECT_EQ(map.updates, 2);
    render(stage["Viewer1"], new ValuePool("Viewer2"));
    EXPECT_EQ(map.updates, 3);
}

TEST_F(Rendering, AChangedMapChangesSliceAndLegend) {
    stage.set("Legend", "width", "0.05");
    Image const before = stage.picture();
    stage.set("map", "blue", "1");
    Image const after = stage.picture();
    EXPECT_EQ(before.at(50, 50)[2], 128);
    EXPECT_EQ(after.at(50, 50)[2], 255);
    EXPECT_EQ(before.at(5, 50)[2], 128);
    EXPECT_EQ(after.at(5, 50)[2], 255);
}

TEST_F(Rendering, TimeMovesTheField) {
    stage.make("Create/GlobalTime", "GlobalTime");
    ASSERT_TRUE(stage.connect("theField", "time", "GlobalTime", "value"));
    Image const before = stage.picture();
    stage.set("GlobalTime", "value", "1[0,1]@0.1");
    EXPECT_FALSE(stage.picture() == before);
    stage.set("GlobalTime", "value", "0[0,1]@0.1");
    EXPECT_EQ(stage.picture(), before);
}

TEST_F(Rendering, WithoutAnyOfItsDataTheSliceIsNotShown) {
    for (char const* name :
         {"theBundle", "theGrid", "theField", "map", "FieldSlice", "DefaultScene"}) {
        Stage lacking;
        lacking.furnish();
        lacking.set("Legend", "width", "0");
        EXPECT_FALSE(lacking.picture() == Image(200, 100, Background)) << name;
        lacking.remove(name);
        EXPECT_EQ(lacking.picture(), Image(200, 100, Background)) << name;
    }
}

TEST_F(Rendering, NumbersThatAreNoneShowTheBackground) {
    for (char const* point : {"{nan,3,0}", "{inf,3,0}", "{0,1e300,0}"}) {
        stage.set("Camera", "observer", point);
        EXPECT_EQ(middle(), Background) << point;
    }
}

TEST_F(Rendering, ProgressRunsFrom0To1) {
    stage.set("Viewer1", "size", "20x100");
    std::vector<double> heard;
    render(stage["Viewer1"], stage.pool, [&](double part) { heard.push_back(part); });
    ASSERT_GT(heard.size(), 2U);
    EXPECT_EQ(heard.front(), 0.0);
    EXPECT_EQ(heard.back(), 1.0);
    for (std::size_t i = 1; i < heard.size(); ++i)
        EXPECT_GT(heard[i], heard[i - 1]);
}

TEST_F(Rendering, TheSameNetworkGivesTheSamePicture) {
    Stage twin;
    twin.furnish();
    Stage another;
    another.furnish();
    EXPECT_EQ(twin.picture(), another.picture());
}

}  // namespace
}  // namespace tests
