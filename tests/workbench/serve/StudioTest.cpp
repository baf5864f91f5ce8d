#include "tests/workbench/serve/StudioTest.hpp"

#include <algorithm>

#include "workbench/nodes/Viewer.hpp"

namespace workbench {

char const* const SmallNetwork = R"(# TelmScript Preliminiary Experimental 
# VERBOSE

# Expecting Implicitly created object: 
# CameraControl Camera
Camera.zoom{Viewer1}="40"
Camera.zoom="45"
Camera.zoom.double(max)=140
Camera.zoom.double(min)=1
Camera.qTelm::Net::x="10"
Camera.qTelm::Net::y="20"

# Expecting Implicitly created object: 
# Scene DefaultScene

# Expecting Implicitly created object: 
# Viewer Viewer1
Viewer1.size="60x40"

# Expecting Implicitly created object: 
# Viewer Viewer2
Viewer2.size="20x10"

# DELETE IF EXISTS Time
<>Time
Create/GlobalTime Time
Time.value="0[0,1]@0.1"

# DELETE IF EXISTS Bundle
<>Bundle
CreateBundle/RadialScalarField Bundle
Bundle.gridsize="8"

# DELETE IF EXISTS Grid
<>Grid
Strand/Grid Grid

# DELETE IF EXISTS Field
<>Field
Strand/Scalarfield Field

# DELETE IF EXISTS Map
<>Map
Colormaps/RedGreen Map
Map.qTelm::Net::status="icon{visible}{icon}{hidden}"

# DELETE IF EXISTS Slice
<>Slice
Display/OrthoSlice Slice
Slice.transparency="0.5"

# DELETE IF EXISTS Legend
<>Legend
Legend/ColorLegend Legend

#
# Establish Connections
#
DefaultScene.Slice.renderable=>Slice
DefaultScene.Legend.renderable=>Legend
Field.grid=>Grid
Grid.spacetime=>Bundle
Legend.colormap=>Map
Slice.scalarfield=>Field
Slice.colormap=>Map
Viewer1.scene=>DefaultScene
Viewer2.scene=>DefaultScene

#
# Setup Objects
#
Bundle()
Camera()
DefaultScene()
Field()
Grid()
Legend()
Map()
Slice()
Time()
Viewer1()
Viewer2()
)";

std::string quoted(std::string text) {
    std::ranges::replace(text, '\'', '"');
    return text;
}

std::string StudioTest::refusal(std::string const& change) {
    try {
        edit(change);
        return {};
    } catch (CallError const& error) {
        return error.what();
    }
}

Json StudioTest::node(std::string const& name) {
    Json const all = state();
    for (Json const& each : all["nodes"])
        if (each["name"] == name)
            return each;
    return nullptr;
}

Json StudioTest::parameter(std::string const& object, std::string const& name) {
    Json const all = node(object);
    for (Json const& each : all["parameters"])
        if (each["name"] == name)
            return each;
    return nullptr;
}

void StudioTest::expectTextAndPicturesAgree() {
    std::unique_ptr<Network> const fresh = networkOf(Script::read(studio_.text()));
    for (std::string const& viewer : fresh->viewers())
        EXPECT_EQ(render(*fresh->object(viewer), fresh->pool(viewer)), *studio_.picture(viewer))
            << viewer << " of\n"
            << studio_.text();
}

}  // namespace workbench
