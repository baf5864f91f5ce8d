/// What the network remarks on: values that change nothing, and what a picture lacks.
#include <cstring>

#include "tests/workbench/network/NetworkTest.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Viewer.hpp"

namespace workbench {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

// --- remarks

struct Remark {
    char const* lines;   ///< from line 3 on
    char const* report;  ///< the one remark; empty: none
};

TEST_F(NetworkTest, RemarksOnValuesThatChangeNothing) {
    std::string const camera =
        "# Expecting Implicitly created object: \n# CameraControl Camera\n"
        "# Expecting procedurally object:  Viewer1\n";
    std::string const cameraWith[] = {
        camera + "Camera.zoom{Vewer1}=\"30\"\n", camera + "Camera.zoon=\"30\"\n",
        camera + "Camera.speed=\"30\"\n", camera + "Camera.zoom{Viewer1}=\"30\"\n",
        camera + "Camera.x{Z}=\"1\"\nCamera.x{Z}=\"2\"\n"};
    Remark const table[] = {
        {"Display/OrthoSlice S\nS.orientaton=\"X\"\n",
         "net:4: 'S' has no parameter 'orientaton', so that its value is kept and changes nothing; "
         "did you mean 'orientation'?"},
        {"Display/OrthoSlice S\nS.banana=\"X\"\nS.banana=\"Y\"\n",
         "net:4: 'S' has no parameter 'banana', so that its value is kept and changes nothing"},
        {cameraWith[0].c_str(),
         "net:6: there is no viewer 'Vewer1', so that values for it are kept and change nothing; "
         "did you mean 'Viewer1'?"},
        {cameraWith[1].c_str(),
         "net:6: 'Camera' has no parameter 'zoon', so that its value is kept and changes nothing; "
         "did you mean 'zoom'?"},
        {cameraWith[2].c_str(), ""},
        {cameraWith[3].c_str(), ""},
        {cameraWith[4].c_str(),
         "net:6: there is no viewer 'Z', so that values for it are kept and change nothing"},
        {"# Expecting procedurally object:  Keeper\nKeeper.a=\"1\"\nKeeper.aa=\"1\"\n", ""},
    };
    for (Remark const& each : table) {
        Network network;
        network.execute(Script::read("# TelmScript Preliminiary Experimental \n# VERBOSE\n" +
                                     std::string(each.lines)));
        EXPECT_FALSE(anyFailure(network.complaints())) << each.lines;
        EXPECT_EQ(reports(network), *each.report != '\0' ? std::vector<std::string>{each.report}
                                                         : std::vector<std::string>())
            << each.lines;
    }
}

TEST_F(NetworkTest, TakesAnyTextForAValueThatItMerelyKeeps) {
    execute(
        "# Expecting procedurally object:  Viewer1\n# Expecting procedurally object:  K\n"
        "K.speed{Viewer1}=\"2\"\nK.speed=\"1\"\nK.speed=\"fast\"\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_EQ(valueOf(network_, "K.speed"), "fast");
    EXPECT_EQ(valueOf(network_, "K.speed{Viewer1}"), "2") << "that of the context stays";
    EXPECT_EQ(refusal("K.speed", "slow"), "");
    EXPECT_THAT(network_.save(), HasSubstr("K.speed=\"slow\""));
}

TEST_F(NetworkTest, KeepsTheTypeOfAKeptValueThatAnotherObjectReads) {
    execute(
        "# Expecting procedurally object:  K\nK.time=\"0[0,1]@0.1\"\nStrand/Scalarfield F\n"
        "F.time=>K.time\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_THAT(refusal("K.time", "noon"), HasSubstr("'noon' is no value"));
    EXPECT_EQ(valueOf(network_, "K.time"), "0[0,1]@0.1");
}

TEST_F(NetworkTest, MakesAnExpectedObjectOfTheCatalogueByItsKey) {
    execute(
        "# Expecting Implicitly created object: \n# Create/GlobalTime T\n"
        "# Expecting Implicitly created object: \n# Colormaps/Hypsometric M\n"
        "# Expecting Implicitly created object: \n# Create/Webserver W\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_EQ(network_.object("T")->type_key(), "Create/GlobalTime");
    EXPECT_EQ(network_.object("M")->type_key(), "Colormaps/Hypsometric");
    EXPECT_EQ(network_.object("W")->type_key(), "") << "the host brings it along";
}

// --- what a picture lacks

constexpr char Chain[] =
    "# Expecting procedurally object:  Viewer1\n# Expecting procedurally object:  DefaultScene\n"
    "CreateBundle/RadialScalarField B\nB.gridsize=\"4\"\nStrand/Grid G\n"
    "G.gridname=\"AnalyticUniformGrid@AnalyticUniformGrid\"\nStrand/Scalarfield F\n"
    "F.fieldname=\"radialfield@radialfield\"\nColormaps/Hypsometric M\nDisplay/OrthoSlice S\n"
    "Legend/ColorLegend L\nViewer1.size=\"8x8\"\nViewer1.scene=>DefaultScene\n"
    "DefaultScene.S.renderable=>S\nDefaultScene.L.renderable=>L\nS.scalarfield=>F\n"
    "S.colormap=>M\nL.colormap=>M\nF.grid=>G\nG.spacetime=>B\n";

struct Break {
    char const* line;   ///< of the chain, left out or replaced
    char const* by;     ///< may be empty
    char const* fault;  ///< the one that is told; empty: none
};

TEST_F(NetworkTest, TellsWhereTheWayOfTheDataIsBroken) {
    Break const table[] = {
        {"", "", ""},
        {"Viewer1.scene=>DefaultScene\n", "", "net:3: 'Viewer1': there is no scene to show"},
        {"S.colormap=>M\n", "", "net:12: 'S': there is no colour map to show the field with"},
        {"S.scalarfield=>F\n", "", "net:12: 'S': there is no field to show"},
        {"L.colormap=>M\n", "", "net:13: 'L': there is no colour map to show"},
        {"F.grid=>G\n", "", "net:9: 'F': there is no grid to take a field from"},
        {"G.spacetime=>B\n", "", "net:7: 'G': there is no data set to take a grid from"},
        {"radialfield@radialfield", "smoke@radialfield",
         "net:10: 'F': there is no field 'smoke' on the grid 'AnalyticUniformGrid'"},
        {"AnalyticUniformGrid@AnalyticUniformGrid", "Sphere@Sphere",
         "net:8: 'G': the data set has no grid 'Sphere'"},
        {"Colormaps/Hypsometric M\n", "Colormaps/Nothing M\n", ""},  // complained of already
    };
    for (Break const& each : table) {
        std::string lines = Chain;
        lines.replace(lines.find(each.line), std::strlen(each.line), each.by);
        Network network;
        network.execute(
            Script::read("# TelmScript Preliminiary Experimental \n# VERBOSE\n" + lines));
        render(*network.object("Viewer1"), network.pool("Viewer1"));
        std::vector<Complaint> const faults = network.faultsBehind("Viewer1");
        std::vector<std::string> texts;
        for (Complaint const& fault : faults)
            texts.push_back(reportOf("net", fault));
        EXPECT_EQ(texts, *each.fault != '\0' ? std::vector<std::string>{each.fault}
                                             : std::vector<std::string>())
            << each.line;
    }
}

TEST_F(NetworkTest, TellsASavedNetworkThatIsCutAtTheEndOfALine) {
    std::string const whole = example("HypsometricSlice.telm");
    for (char const* const begin :
         {"Camera()\n", "theGrid()\n", "# Setup Objects\n", "theGrid.spacetime=>theBundle\n"}) {
        Network network;
        network.execute(Script::read(whole.substr(0, whole.find(begin))));
        EXPECT_TRUE(anyFailure(network.complaints())) << begin;
        EXPECT_THAT(reports(network).back(), HasSubstr("; is the file cut off?")) << begin;
    }
}

}  // namespace
}  // namespace workbench
