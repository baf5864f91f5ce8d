#include <gtest/gtest.h>

#include "runtime/lattice/Catalogue.hpp"
#include "tests/workbench/nodes/Stage.hpp"

using namespace Orlo;

namespace tests {
namespace {

struct Kind {
    char const* key;
    std::vector<std::string> slots;
};

std::vector<Kind> const& kinds() {
    static std::vector<Kind> const table = {
        {"CreateBundle/RadialScalarField",
         {"gridsize=32", "size=1", "timesteps=10", "tmax=1", "a=1",
          "Threads=", "bundle->A Bundle Object."}},
        {"Strand/Grid",
         {"spacetime=A Bundle Object.", "gridname=AnalyticUniformGrid@AnalyticUniformGrid",
          "grid->A Grid Object."}},
        {"Strand/Scalarfield",
         {"grid=A Grid Object.", "time=0[0,1]@0.1", "fieldname=radialfield@radialfield",
          "field->A Scalarfield Object."}},
        {"Display/OrthoSlice",
         {"scalarfield=A Scalarfield Object.", "colormap=A Colormap Object.",
          "chart=A Chart Object.", "datarange=0,1",
          "mode=Interpolated{Discrete}{Interpolated}{Smooth}", "orientation=Y{X}{Y}{Z}",
          "textureprecision=8bit{8bit}{16bit}", "transparency=1", "position=0",
          "renderable->A Renderable Object."}},
        {"Legend/ColorLegend",
         {"colormap=A Colormap Object.", "chart=A Chart Object.", "bordercolor=(1,1,1,1)",
          "position=0.03x0.03", "height=0.9", "width=0.05", "renderable->A Renderable Object."}},
        {"Legend/ShowRange",
         {"range=0,1", "chart=A Chart Object.", "position=0.05x0.025", "width=0.9",
          "color=(1,1,1,1)", "renderable->A Renderable Object."}},
        {"Create/GlobalTime", {"value=0[0,1]@0.1"}},
        {"Create/Range100",
         {"mode=MinMax{MinMax}{ScaleOffset}", "scale=100", "min=0", "max=100", "offset=0",
          "range->0,1"}},
    };
    return table;
}

TEST(Kinds, EachHasItsParametersWithTheirDefaultsInOrder) {
    Stage stage;
    for (Kind const& kind : kinds())
        EXPECT_EQ(slotTexts(stage.make(kind.key, "object")), kind.slots) << kind.key;
}

TEST(Kinds, TheCatalogueHasThemInThisOrderAsLongAsTheyStand) {
    {
        workbench::NodeCreators const creators;
        std::vector<WeakCreatorPtr> const entries = catalogue();
        ASSERT_EQ(entries.size(), kinds().size());
        for (std::size_t i = 0; i < entries.size(); ++i) {
            EXPECT_EQ(entries[i]->keyname("/"), kinds()[i].key);
            EXPECT_FALSE(entries[i]->get(VCreatorPropertyElements::Description).empty());
        }
    }
    EXPECT_TRUE(catalogue().empty());
    for (Kind const& kind : kinds())
        EXPECT_FALSE(findCreator(kind.key)) << kind.key;
}

TEST(Kinds, TheirObjectsGoWithThem) {
    ObjectPtr object;
    {
        workbench::NodeCreators const creators;
        object = findCreator("Create/GlobalTime")->create("t", Nucleo::Intercube(), nullptr);
        EXPECT_TRUE(object);
    }
    EXPECT_FALSE(object);
}

TEST(Kinds, AnObjectKnowsItsKindAndItsName) {
    Stage stage;
    for (Kind const& kind : kinds()) {
        VObject& object = stage.make(kind.key, "some name");
        EXPECT_EQ(object.type_key(), kind.key);
        EXPECT_EQ(object.Name(), "some name");
    }
}

TEST(Kinds, UnconnectedObjectsUpdateAllTheSame) {
    Stage stage;
    for (Kind const& kind : kinds()) {
        VRequest request(stage.pool);
        EXPECT_TRUE(stage.make(kind.key, "object").request(request, 0, nullptr, nullptr))
            << kind.key;
    }
}

struct RangeCase {
    char const* mode;
    char const* min;
    char const* max;
    char const* scale;
    char const* offset;
    Range expected;
};

TEST(Kinds, Range100ProvidesTheRangeOfItsMode) {
    RangeCase const table[] = {
        {"MinMax", "0", "100", "100", "0", Range(0, 100)},
        {"MinMax", "-5", "5", "7", "8", Range(-5, 5)},
        {"ScaleOffset", "-5", "5", "100", "0", Range(0, 100)},
        {"ScaleOffset", "-5", "5", "10", "2.5", Range(2.5, 12.5)},
        {"ScaleOffset", "0", "100", "-1", "0", Range(0, -1)},
    };
    Stage stage;
    VObject& object = stage.make("Create/Range100", "Range100");
    for (RangeCase const& each : table) {
        stage.set("Range100", "mode", each.mode);
        stage.set("Range100", "min", each.min);
        stage.set("Range100", "max", each.max);
        stage.set("Range100", "scale", each.scale);
        stage.set("Range100", "offset", each.offset);
        EXPECT_EQ(provided<Range>(object, "range", stage.pool), each.expected)
            << each.mode << " " << each.expected.minimum << " " << each.expected.maximum;
    }
}

TEST(Kinds, ARangeThatIsProvidedCanTakeThePlaceOfAParameter) {
    Stage stage;
    stage.make("Create/Range100", "Range100");
    stage.make("Display/OrthoSlice", "slice");
    EXPECT_TRUE(stage.connect("slice", "datarange", "Range100"));
    VRequest request(stage.pool);
    stage["slice"].request(request, 0, nullptr, nullptr);
    Range range;
    readParameter(*stage["slice"].slot("datarange")->parameter(), stage.pool, range);
    EXPECT_EQ(range, Range(0, 100));
}

TEST(Kinds, PortsOfDifferentTypesDoNotMeet) {
    Stage stage;
    stage.furnish();
    stage.make("Create/GlobalTime", "GlobalTime");
    EXPECT_FALSE(stage.connect("theField", "grid", "theBundle"));
    EXPECT_FALSE(stage.connect("FieldSlice", "scalarfield", "theGrid"));
    EXPECT_FALSE(stage.connect("FieldSlice", "colormap", "theField"));
    EXPECT_FALSE(stage.connect("DefaultScene", "map.renderable", "map"));
    EXPECT_FALSE(stage.connect("Viewer1", "scene", "Camera"));
    EXPECT_FALSE(stage.connect("FieldSlice", "datarange", "GlobalTime", "value"));
    EXPECT_TRUE(stage.connect("theField", "time", "GlobalTime", "value"));
    EXPECT_TRUE(stage.connect("Camera", "time", "GlobalTime", "value"));
}

}  // namespace
}  // namespace tests
