/// What there is to see: pictures, pixels under the pointer, maps under the glass.
#include "tests/workbench/serve/StudioTest.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/session/MapObject.hpp"
#include "workbench/session/lookupLine.hpp"

namespace workbench {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Seeing = StudioTest;

TEST_F(Seeing, AViewerThatIsNoneIsNotThere) {
    EXPECT_THROW(studio_.picture("Camera"), NotThere);
    EXPECT_THROW(studio_.picture("Viewer9"), NotThere);
}

TEST_F(Seeing, APictureBeyondTheLimitIsNotDrawnAndTheStateSaysWhy) {
    edit("{'do':'set','object':'Viewer2','name':'size','text':'4097x10'}");
    EXPECT_THROW(studio_.picture("Viewer2"), WorkError);
    EXPECT_THAT(state()["viewers"][1]["error"].get<std::string>(), HasSubstr("up to 4096 a side"));
    edit("{'do':'set','object':'Viewer2','name':'size','text':'4096x1'}");
    EXPECT_EQ(studio_.picture("Viewer2")->width(), 4096);
    EXPECT_TRUE(state()["viewers"][1]["error"].is_null());
}

TEST_F(Seeing, ASizeThatNoPictureHasIsToldOf) {
    edit("{'do':'set','object':'Viewer2','name':'size','text':'0x-1'}");
    EXPECT_THROW(studio_.picture("Viewer2"), WorkError);
    EXPECT_THAT(state()["viewers"][1]["error"].get<std::string>(), HasSubstr("0x-1"));
}

/// The opaque colour that a probe says is looked up there.
Rgba8 lookedUp(Json const& probe) {
    std::istringstream words(probe["lookup"].get<std::string>());
    std::string scalar;
    Tessar::rgba_float_t color;
    words >> scalar >> color[0] >> color[1] >> color[2] >> color[3];
    EXPECT_EQ(probe["scalar"], scalar);
    return opaque(color);
}

TEST_F(Seeing, EachPixelOfASliceHasTheColorOfItsScalar) {
    edit("{'do':'set','object':'Slice','name':'transparency','text':'1'}");
    edit("{'do':'delete','object':'Legend'}");
    auto const image = studio_.picture("Viewer1");
    int found = 0;
    for (int y = 0; y < image->height(); ++y)
        for (int x = 0; x < image->width(); ++x) {
            Json const probe = Json::parse(studio_.probe("Viewer1", x, y));
            EXPECT_EQ(probe["color"], Json(image->at(x, y)));
            EXPECT_EQ(probe["sample"].is_null(), probe["scalar"].is_null());
            if (probe["scalar"].is_null())
                continue;
            EXPECT_EQ(probe["map"], "Map");
            EXPECT_EQ(lookedUp(probe), image->at(x, y)) << x << ", " << y;
            ++found;
        }
    EXPECT_GT(found, 200);
}

TEST_F(Seeing, EachRowOfALegendHasTheColorOfItsScalar) {
    edit("{'do':'set','object':'Legend','name':'position','text':'0.4x0.2'}");
    edit("{'do':'set','object':'Legend','name':'width','text':'0.2'}");
    edit("{'do':'set','object':'Legend','name':'height','text':'0.6'}");
    auto const image = studio_.picture("Viewer1");
    double before = 2;
    for (int y = 10; y < 31; ++y) {  // within the frame
        Json const probe = Json::parse(studio_.probe("Viewer1", 30, y));
        ASSERT_TRUE(probe["sample"].is_null()) << y;
        EXPECT_EQ(lookedUp(probe), image->at(30, y)) << y;
        double const scalar = std::stod(probe["scalar"].get<std::string>());
        EXPECT_LT(scalar, before) << y;
        before = scalar;
    }
}

TEST_F(Seeing, WhereNothingIsThereAreNoNumbers) {
    Json const probe = Json::parse(studio_.probe("Viewer1", 59, 0));
    for (char const* const name : {"sample", "scalar", "map", "lookup"})
        EXPECT_TRUE(probe[name].is_null()) << name;
    EXPECT_THROW(studio_.probe("Viewer1", 60, 0), CallError);
    EXPECT_THROW(studio_.probe("Viewer1", 0, -1), CallError);
}

TEST_F(Seeing, AColorBetweenSmoothSamplesIsThatOfNoScalar) {
    edit("{'do':'set','object':'Slice','name':'mode','text':'Smooth'}");
    Json const probe = Json::parse(studio_.probe("Viewer1", 30, 20));
    EXPECT_FALSE(probe["sample"].is_null());
    EXPECT_TRUE(probe["scalar"].is_null());
    EXPECT_TRUE(probe["lookup"].is_null());
    EXPECT_EQ(probe["map"], "Map");
}

TEST_F(Seeing, TheGlassShowsThePresentMapWithoutAnyStyle) {
    std::string const before = studio_.glass("Map");
    EXPECT_THAT(before, HasSubstr("Tritan"));
    EXPECT_THAT(before, HasSubstr("class=\"curve lightness\""));
    EXPECT_THAT(before, Not(HasSubstr("style=")));
    EXPECT_THAT(before, Not(HasSubstr("<script")));
    edit("{'do':'set','object':'Map','name':'startcolor','text':'(0,0,1,1)'}");
    EXPECT_NE(studio_.glass("Map"), before);
    EXPECT_THROW(studio_.glass("Slice"), NotThere);
}

TEST_F(Seeing, AnIconIsThatOfTheLastUpdate) {
    std::string const before = studio_.icon("Map");
    EXPECT_THAT(before, StartsWith("\x89PNG"));
    edit("{'do':'set','object':'Map','name':'startcolor','text':'(0,0,1,1)'}");
    EXPECT_NE(studio_.icon("Map"), before);
    EXPECT_THROW(studio_.icon("Slice"), NotThere);
    EXPECT_THROW(studio_.icon("Nobody"), NotThere);
}

TEST_F(Seeing, TheCatalogueHasAllEntriesAndARampForEachMap) {
    Json const catalogue = Json::parse(studio_.catalogue());
    int maps = 0, nodes = 0;
    for (Json const& entry : catalogue) {
        bool const isMap = entry["kind"] == "map";
        (isMap ? maps : nodes) += 1;
        EXPECT_EQ(entry["plugin"], isMap ? "prism_tinctures.telm" : "");
        if (isMap) {
            EXPECT_THAT(studio_.ramp(entry["key"]), StartsWith("\x89PNG"));
        } else {
            EXPECT_THROW(studio_.ramp(entry["key"]), NotThere);
        }
    }
    EXPECT_EQ(maps, 21);
    EXPECT_EQ(nodes, 8);
    EXPECT_THROW(studio_.ramp("Glow"), NotThere) << "keys are whole";
}

}  // namespace
}  // namespace workbench
