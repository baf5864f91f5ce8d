/// Networks executed with the built plug-in and the host's own objects.
#include "workbench/network/Network.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/PluginTest.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/NodeCreators.hpp"
#include "workbench/nodes/Viewer.hpp"

namespace workbench {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string example(char const* name) {
    return readFile(std::filesystem::path(PRISM_EXAMPLES) / name);
}

std::vector<std::string> reports(Network const& network) {
    std::vector<std::string> texts;
    for (Complaint const& complaint : network.complaints())
        texts.push_back(reportOf("net", complaint));
    return texts;
}

/// The text form of an object's parameter, in a context if one is named.
std::string valueOf(Network& network, std::string const& place) {
    auto const where = valuePathOf(place);
    Orlo::SlotPtr const slot = network.object(where->object)->slot(where->name);
    if (!slot)
        return "no such parameter";
    Orlo::PoolPtr const pool =
        where->context.empty() ? Orlo::PoolPtr() : network.pool(where->context);
    return Orlo::valueInPool(*slot->ownParameter(), pool, false)->text();
}

/// The name of the object that an input is connected to.
std::string providerOf(Network const& network, std::string const& object,
                       std::string const& input) {
    Orlo::SlotPtr const slot = network.object(object)->slot(input);
    if (!slot)
        return "no such input";
    Orlo::ObjectPtr const provider(slot->provider());
    return provider ? provider->Name() : "nobody";
}

class NetworkTest : public tests::PluginTest {
protected:
    /// Carries out a banner with the given lines behind it.
    void execute(std::string const& lines) {
        network_.execute(
            Script::read("# TelmScript Preliminiary Experimental \n# VERBOSE\n" + lines));
    }

    /// What a change is refused with; empty if it is not.
    std::string refusal(std::string const& place, std::string const& text) {
        try {
            network_.set(place, text);
            return {};
        } catch (CallError const& error) {
            return error.what();
        }
    }

    NodeCreators kinds_;
    Network network_;
};

// --- each form of line does its work

TEST_F(NetworkTest, MakesTheExpectedObjectsOfBothForms) {
    execute(
        "# Expecting Implicitly created object: \n# CameraControl Camera\n"
        "# Expecting procedurally object:  Viewer1\n# Expecting procedurally object:  Stranger\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_THAT(network_.names(), ElementsAre("Camera", "Stranger", "Viewer1"));
    EXPECT_THAT(network_.viewers(), ElementsAre("Viewer1"));
}

TEST_F(NetworkTest, CreatesObjectsByTheirCatalogueKey) {
    execute("Colormaps/Hypsometric Map\nCreate/GlobalTime Time\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_EQ(network_.object("Map")->type_key(), "Colormaps/Hypsometric");
    EXPECT_EQ(network_.object("Map")->Name(), "Map");
    EXPECT_EQ(network_.object("Time")->type_key(), "Create/GlobalTime");
}

TEST_F(NetworkTest, KeepsTheDefaultOfAParameterThatNoLineNames) {
    execute("Colormaps/Hypsometric Map\n");
    EXPECT_EQ(valueOf(network_, "Map.options"), " -inverse");
}

TEST_F(NetworkTest, DeletesAnObjectAndItsConnections) {
    execute(
        "Colormaps/Hypsometric Map\nLegend/ColorLegend Legend\nLegend.colormap=>Map\n"
        "# DELETE IF EXISTS Map\n<>Map\n<>Nobody\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_THAT(network_.names(), ElementsAre("Legend"));
    EXPECT_EQ(providerOf(network_, "Legend", "colormap"), "nobody");
}

TEST_F(NetworkTest, SetsParametersAndKeepsWhatHostObjectsDoNotKnow) {
    execute(
        "Display/OrthoSlice Slice\nSlice.mode=\"Smooth{Discrete}{Interpolated}{Smooth}\"\n"
        "Slice.transparency=\"0.5\"\nSlice.remark=\"{1,2,3}\"\n"
        "# Expecting procedurally object:  Keeper\nKeeper.flags=\" -Orthographic\"\n");
    EXPECT_FALSE(anyFailure(network_.complaints()));
    EXPECT_EQ(valueOf(network_, "Slice.mode"), "Smooth{Discrete}{Interpolated}{Smooth}");
    EXPECT_EQ(valueOf(network_, "Slice.transparency"), "0.5");
    EXPECT_EQ(valueOf(network_, "Slice.remark"), "{1,2,3}");
    EXPECT_EQ(valueOf(network_, "Keeper.flags"), " -Orthographic");
}

TEST_F(NetworkTest, SetsAValueForAContextApartFromThePlainOne) {
    execute(
        "# Expecting Implicitly created object: \n# CameraControl Camera\n"
        "# Expecting procedurally object:  Viewer1\n"
        "Camera.zoom{Viewer1}=\"30\"\nCamera.zoom=\"60\"\nCamera.aperture{Viewer1}=\"1\"\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_EQ(valueOf(network_, "Camera.zoom{Viewer1}"), "30");
    EXPECT_EQ(valueOf(network_, "Camera.zoom"), "60");
    EXPECT_EQ(valueOf(network_, "Camera.zoom{Viewer2}"), "60");
    EXPECT_EQ(valueOf(network_, "Camera.aperture{Viewer1}"), "1");
}

TEST_F(NetworkTest, SetsTypedPropertiesOnParameters) {
    execute(
        "Create/GlobalTime T\nT.value.bool(allowTmaxAdjustment)=true\nT.value.double(max)=2.5\n"
        "T.value.int32_t(min)=-3\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    Orlo::ValueMap const* const properties =
        network_.object("T")->slot("value")->ownParameter()->properties();
    ASSERT_NE(properties, nullptr);
    EXPECT_EQ(properties->getValue("allowTmaxAdjustment")->type(), typeid(bool));
    EXPECT_EQ(properties->getValue("allowTmaxAdjustment")->text(), "true");
    EXPECT_EQ(properties->getValue("max")->type(), typeid(double));
    EXPECT_EQ(properties->getValue("max")->text(), "2.5");
    EXPECT_EQ(properties->getValue("min")->type(), typeid(int));
    EXPECT_EQ(properties->getValue("min")->text(), "-3");
}

TEST_F(NetworkTest, KeepsAttributesAndNotes) {
    execute(
        "Create/GlobalTime T\nT.qTelm::Net::x=\"22\"\nT.qTelm::Net::status=\"icon\"\n"
        "T.qTelm::Net::colour=\"anything\"\n# Note: T.status is not saved.\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_EQ(network_.attribute("T", "qTelm::Net::x"), "22");
    EXPECT_EQ(network_.attribute("T", "qTelm::Net::status"), "icon");
    EXPECT_EQ(network_.attribute("T", "qTelm::Net::colour"), "anything");
    EXPECT_EQ(network_.attribute("T", "qTelm::Net::y"), "");
    EXPECT_EQ(network_.attribute("Nobody", "qTelm::Net::x"), "");
}

TEST_F(NetworkTest, ConnectsInputsToOutputsAndToParameters) {
    execute(
        "Create/GlobalTime T\nCreateBundle/RadialScalarField B\nStrand/Grid G\n"
        "Strand/Scalarfield F\n# Expecting procedurally object:  ChartSelector\n"
        "# Expecting procedurally object:  DefaultScene\nDisplay/OrthoSlice S\n"
        "G.spacetime=>B\nF.grid=>G\nF.time=>T.value\nChartSelector.::atlas=>G\n"
        "S.chart=>ChartSelector\nDefaultScene.S.renderable=>S\n");
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_EQ(providerOf(network_, "G", "spacetime"), "B");
    EXPECT_EQ(providerOf(network_, "F", "time"), "T");
    EXPECT_EQ(network_.object("F")->slot("time")->parameter(),
              network_.object("T")->slot("value")->ownParameter());
    EXPECT_EQ(providerOf(network_, "ChartSelector", "::atlas"), "G");
    EXPECT_EQ(providerOf(network_, "DefaultScene", "S.renderable"), "S");
}

// --- lines that cannot be executed

struct FailingLine {
    char const* lines;   ///< from line 3 on; the last one fails
    char const* report;  ///< part of the one report
};

FailingLine const FailingLines[] = {
    {"Colormaps/Hypsometrik Map\n",
     "net:3: 'Colormaps/Hypsometrik Map': the catalogue has no entry 'Colormaps/Hypsometrik'; "
     "near it is 'Colormaps/Hypsometric'"},
    {"Colormaps/UserColors U\n",
     "no entry 'Colormaps/UserColors'; a plug-in that provides it must be loaded"},
    {"Create/GlobalTime T\nCreate/GlobalTime T\n",
     "net:4: 'Create/GlobalTime T': there is an object 'T' already; '<>T' before this line"},
    {"Create/GlobalTime Time\nTyme.value=\"0[0,1]@0.1\"\n",
     "net:4: 'Tyme.value=\"0[0,1]@0.1\"': there is no object 'Tyme'; did you mean 'Time'?"},
    {"Colormaps/Hypsometric M\nM.optoins=\" inverse\"\n",
     "'M' has no parameter 'optoins'; did you mean 'options'?"},
    {"Colormaps/Hypsometric M\nM.options=\" sideways\"\n",
     "the text ' sideways' is no value of the parameter 'options'"},
    {"Colormaps/Hypsometric M\nM.colormap=\"1\"\n", "'colormap' of 'M' is an output"},
    {"Create/GlobalTime T\nT.value=\"now\"\n", "the text 'now' is no value"},
    {"Create/GlobalTime T\nT.valve.double(max)=1\n",
     "'T' has no parameter 'valve'; did you mean 'value'?"},
    {"Create/GlobalTime T\nT.value.float(max)=1\n",
     "there is no property type 'float'; there are 'double', 'int32_t' and 'bool'"},
    {"Create/GlobalTime T\nT.value.int32_t(max)=1.5\n", "'1.5' is no int32_t"},
    {"Create/GlobalTime T\nT.value.bool(x)=yes\n", "'yes' is no bool"},
    {"# Note: T.status is not saved.\n", "there is no object 'T'"},
    {"T.qTelm::Net::x=\"1\"\n", "there is no object 'T'"},
    {"Create/GlobalTime T\nT.qTelm::Net::x=\"left\"\n", "'left' is no number"},
    {"Create/GlobalTime T\nT.qTelm::Net::status=\"gone\"\n", "'gone' is no status"},
    {"T()\n", "there is no object 'T'"},
    {"Create/GlobalTime T\nT.x=>Nobody\n", "there is no object 'Nobody'"},
    {"Create/GlobalTime T\nNobody.x=>T\n", "there is no object 'Nobody'"},
    {"Colormaps/Hypsometric M\nLegend/ColorLegend L\nL.colourmap=>M\n",
     "'L' has no input 'colourmap'; did you mean 'colormap'?"},
    {"Colormaps/Hypsometric M\nLegend/ColorLegend L\nL.colormap=>M.options\n",
     "the types do not fit: 'colormap' of 'L' takes "},
    {"Create/GlobalTime T\nLegend/ColorLegend L\nL.colormap=>T\n",
     "'T' provides nothing by itself; name one of its parameters, as T.PARAMETER"},
    {"Legend/ColorLegend L\nStrand/Grid M\nM.spacetime=>L\n",
     "the types do not fit: 'spacetime' of 'M' takes Bundle, 'L' provides Renderable"},
    {"Create/GlobalTime T\nStrand/Scalarfield F\nF.time=>T.valu\n",
     "'T' has no parameter 'valu'; did you mean 'value'?"},
    {"Colormaps/Hypsometric M\nM.colormap=>M\n", "a cycle"},
    {"# Expecting procedurally object:  A\n# Expecting procedurally object:  B\n"
     "# Expecting procedurally object:  C\nA.x=>B\nB.x=>C\nC.x=>A\n",
     "net:8: 'C.x=>A': this would close a cycle: 'A' itself depends on 'C'"},
    {"Create/GlobalTime T\nT.value=\"0[0,1\n", "no double quote at its end"},
    {"What is this?\n", "none of the forms"},
};

TEST_F(NetworkTest, ReportsALineThatCannotBeCarriedOutWithItsReason) {
    for (FailingLine const& each : FailingLines) {
        network_.execute(
            Script::read("# TelmScript Preliminiary Experimental \n"
                         "# VERBOSE\n<>T\n<>M\n<>L\n<>F\n<>A\n<>B\n<>C\n<>Map\n<>U\n"
                         "<>Time\n"));
        execute(each.lines);
        ASSERT_EQ(network_.complaints().size(), 1U) << each.lines;
        EXPECT_TRUE(network_.complaints().front().isFailure);
        EXPECT_THAT(reports(network_).front(), HasSubstr(each.report)) << each.lines;
    }
}

TEST_F(NetworkTest, GoesOnBehindALineThatCannotBeCarriedOut) {
    execute("nonsense\nCreate/GlobalTime T\nT.nothing.double(max)=1\nT.value=\"0.5[0,1]@0.1\"\n");
    EXPECT_EQ(network_.complaints().size(), 2U);
    EXPECT_EQ(valueOf(network_, "T.value"), "0.5[0,1]@0.1");
}

TEST_F(NetworkTest, LeavesAValueAloneWhoseTextDoesNotParse) {
    execute("Create/GlobalTime T\nT.value=\"0.5[0,1]@0.1\"\nT.value=\"0.7[0,1\"\n");
    EXPECT_EQ(network_.complaints().size(), 1U);
    EXPECT_EQ(valueOf(network_, "T.value"), "0.5[0,1]@0.1");
}

TEST_F(NetworkTest, CountsTheLinesThatNeedAnObjectThatCouldNotBeMade) {
    execute(
        "Colormaps/UserColors U\nU.color1=\"(1,0,0,1)\"\nU.a.double(max)=1\n"
        "# Note: U.status is not saved.\nU.qTelm::Net::x=\"1\"\nLegend/ColorLegend L\n"
        "L.colormap=>U\nU.datarange=>L\nU()\nL()\n");
    EXPECT_THAT(
        reports(network_),
        ElementsAre(HasSubstr("net:3: 'Colormaps/UserColors U': the catalogue has no entry"),
                    "net:3: 7 further lines concern 'U', which could not be created"));
}

TEST_F(NetworkTest, ForgetsThatAnObjectCouldNotBeMadeOnceItIs) {
    execute("Colormaps/UserColors U\nU()\nCreate/GlobalTime U\nU.value=\"0[0,2]@0.1\"\n");
    EXPECT_EQ(valueOf(network_, "U.value"), "0[0,2]@0.1");
}

TEST_F(NetworkTest, RemarksALastLineWithoutEndAndCarriesItOut) {
    execute("Create/GlobalTime T");
    EXPECT_THAT(reports(network_),
                ElementsAre("net:3: the last line has no line feed; is the file cut off?"));
    EXPECT_FALSE(anyFailure(network_.complaints()));
    EXPECT_THAT(network_.names(), ElementsAre("T"));
}

TEST(Report, IsOneLineWhateverTheTextHolds) {
    std::string const text = reportOf("f", {7, std::string(5000, 'x') + "\n\x1b[31m", "a reason"});
    EXPECT_LT(text.size(), 200U);
    EXPECT_EQ(text.find_first_of("\n\x1b"), std::string::npos);
}

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

// --- the examples

TEST_F(NetworkTest, CarriesTheFirstExampleOutWithoutAComplaint) {
    network_.execute(Script::read(example("HypsometricSlice.telm")));
    EXPECT_THAT(reports(network_), IsEmpty());
    EXPECT_EQ(providerOf(network_, "FieldSlice", "colormap"),
              "Hypsometric_for_FieldSlice_colormap");
    EXPECT_EQ(valueOf(network_, "Hypsometric_for_FieldSlice_colormap.options"), " -inverse");
}

TEST_F(NetworkTest, MissesOneEntryInTheSecondExampleAndRunsTheRest) {
    network_.execute(Script::read(example("UserColorsRuler.telm")));
    ASSERT_EQ(network_.complaints().size(), 2U);
    EXPECT_THAT(reports(network_)[0], HasSubstr("no entry 'Colormaps/UserColors'"));
    EXPECT_THAT(reports(network_)[1], HasSubstr("further lines concern 'UserColors'"));
    EXPECT_EQ(providerOf(network_, "ShowRangeForRange100", "range"), "Range100");
    EXPECT_EQ(providerOf(network_, "UserColors1", "colormap"), "nobody");
    EXPECT_EQ(providerOf(network_, "Viewer1", "scene"), "DefaultScene");
}

TEST_F(NetworkTest, SavesBothExamplesByteForByte) {
    for (char const* const name : {"HypsometricSlice.telm", "UserColorsRuler.telm"}) {
        Network network;
        network.execute(Script::read(example(name)));
        EXPECT_EQ(network.save(), example(name));
        network.pool("Viewer1");
        render(*network.object("Viewer1"), network.pool("Viewer1"));
        EXPECT_EQ(network.save(), example(name)) << "a picture changes nothing";
    }
}

/// The parameters of real objects stand in the order of the objects' slots.
TEST_F(NetworkTest, FindsTheParametersOfTheExamplesInTheirObjectsOrder) {
    for (char const* const name : {"HypsometricSlice.telm", "UserColorsRuler.telm"}) {
        Network network;
        Script const script = Script::read(example(name));
        network.execute(script);
        std::map<std::string, std::size_t> last;
        for (Line const& line : script.lines) {
            auto const* const parameter = std::get_if<ParameterLine>(&line.meaning);
            Orlo::ObjectPtr const object =
                parameter != nullptr ? network.findObject(parameter->object) : Orlo::ObjectPtr();
            if (!object)
                continue;
            auto const& slots = object->slots();
            auto const at = static_cast<std::size_t>(
                std::ranges::find(slots, parameter->name,
                                  [](Orlo::SlotPtr const& slot) { return slot->name(); }) -
                slots.begin());
            EXPECT_GE(at, last[parameter->object]) << line.text;
            last[parameter->object] = at;
        }
    }
}

TEST_F(NetworkTest, FindsTheConnectionsOfAnObjectInTheOrderOfItsInputs) {
    Script const script = Script::read(example("HypsometricSlice.telm"));
    network_.execute(script);
    std::map<std::string, std::size_t> last;
    for (Line const& line : script.lines)
        if (auto const* const connection = std::get_if<ConnectionLine>(&line.meaning)) {
            auto const& slots = network_.object(connection->object)->slots();
            auto const at = static_cast<std::size_t>(
                std::ranges::find(slots, connection->input,
                                  [](Orlo::SlotPtr const& slot) { return slot->name(); }) -
                slots.begin());
            EXPECT_GE(at, last[connection->object]) << line.text;
            last[connection->object] = at;
        }
}

/// What each object of the host keeps without reading it; all other parameters of
/// the examples are read by their objects.
TEST_F(NetworkTest, ReadsTheParametersOfTheExamplesUnderTheirNames) {
    std::map<std::string, std::set<std::string>> const kept{
        {"Camera", {"speed", "epsilon", "bounds", "reset"}},
        {"ChartSelector", {"chart"}},
        {"DefaultScene", {"ambient", "bounds", "update"}},
        {"Viewer1", {"framerate", "snapshot"}},
        {"Viewer2", {"framerate", "snapshot"}}};
    for (char const* const name : {"HypsometricSlice.telm", "UserColorsRuler.telm"}) {
        Script const script = Script::read(example(name));
        Network fresh;  // the objects as they are made, with nothing set
        Script makers = script;
        std::erase_if(makers.lines, [](Line const& line) {
            return std::holds_alternative<ParameterLine>(line.meaning) ||
                   std::holds_alternative<PropertyLine>(line.meaning) ||
                   std::holds_alternative<ConnectionLine>(line.meaning);
        });
        fresh.execute(makers);
        for (Line const& line : script.lines) {
            auto const* const parameter = std::get_if<ParameterLine>(&line.meaning);
            Orlo::ObjectPtr const object =
                parameter != nullptr ? fresh.findObject(parameter->object) : Orlo::ObjectPtr();
            if (!object || dynamic_cast<Placeholder const*>(object.get()) != nullptr)
                continue;
            bool const isKept = kept.contains(parameter->object) &&
                                kept.at(parameter->object).contains(parameter->name);
            EXPECT_EQ(!object->slot(parameter->name), isKept) << name << ": " << line.text;
        }
    }
}

/// The objects that a network adds stand behind those that they read.
TEST_F(NetworkTest, FindsTheObjectsOfTheFirstExampleInTheOrderOfTheirDependence) {
    Script const script = Script::read(example("HypsometricSlice.telm"));
    std::map<std::string, std::size_t> made;
    for (Line const& line : script.lines)
        if (auto const* const creation = std::get_if<CreationLine>(&line.meaning))
            made[creation->object] = line.number;
    std::size_t compared = 0;
    for (Line const& line : script.lines)
        if (auto const* const connection = std::get_if<ConnectionLine>(&line.meaning))
            if (made.contains(connection->object) && made.contains(connection->provider)) {
                EXPECT_GT(made[connection->object], made[connection->provider]) << line.text;
                ++compared;
            }
    EXPECT_GE(compared, 6U);
}

// --- changes

std::vector<std::string> linesThatDiffer(std::string const& before, std::string const& after) {
    std::vector<std::string> differing;
    Script const a = Script::read(before);
    Script const b = Script::read(after);
    std::size_t i = 0;
    for (Line const& line : b.lines) {
        bool const same = i < a.lines.size() && a.lines[i].text == line.text;
        bool const isNew = !same && b.lines.size() > a.lines.size();
        if (!same)
            differing.push_back((isNew ? "+" : "!") + line.text);
        if (!isNew || same)
            ++i;
    }
    return differing;
}

struct Change {
    char const* place;
    char const* text;
    char const* line;  ///< the one line that differs; with a plus, a new one; empty: none
};

Change const Changes[] = {
    {"Camera.zoom", "60", "!Camera.zoom=\"60\""},
    {"Camera.zoom{Viewer1}", "60", "!Camera.zoom{Viewer1}=\"60\""},
    {"Camera.zoom{Viewer2}", "60", "+Camera.zoom{Viewer2}=\"60\""},
    {"Camera.zoom", "45.0", ""},
    {"Camera.options", "Orthographic", "!Camera.options=\" Orthographic\""},
    {"Camera.speed", "0.5", "!Camera.speed=\"0.5\""},
    {"FieldSlice.mode", "Smooth", "!FieldSlice.mode=\"Smooth{Discrete}{Interpolated}{Smooth}\""},
    {"FieldSlice.mode", "Interpolated", ""},
    {"FieldSlice.position", "0.5", "+FieldSlice.position=\"0.5\""},
    {"Hypsometric_for_FieldSlice_colormap.options", "inverse",
     "+Hypsometric_for_FieldSlice_colormap.options=\" inverse\""},
    {"Hypsometric_for_FieldSlice_colormap.options", " -inverse", ""},
    {"GlobalTime.value", "0.5[0,1]@0.1", "!GlobalTime.value=\"0.5[0,1]@0.1\""},
    {"Viewer1.size", "640x480", "!Viewer1.size=\"640x480\""},
    {"theGrid.gridname", "a@b", "!theGrid.gridname=\"a@b\""},
    {"Camera.qTelm::Net::x", "7", "!Camera.qTelm::Net::x=\"7\""},
    {"Camera.qTelm::Net::x", "412", ""},
    {"WebTelm.active", "true", "!WebTelm.active=\"true\""},
    {"Camera.bounds", "[{0,0,0};{1,1,1}]", "!Camera.bounds=\"[{0,0,0};{1,1,1}]\""},
};

TEST_F(NetworkTest, WritesExactlyTheLineThatAChangeConcerns) {
    std::string const before = example("HypsometricSlice.telm");
    for (Change const& each : Changes) {
        Network network;
        network.execute(Script::read(before));
        network.set(each.place, each.text);
        std::vector<std::string> expected;
        if (*each.line != '\0')
            expected.push_back(each.line);
        EXPECT_EQ(linesThatDiffer(before, network.save()), expected) << each.place;
    }
}

TEST_F(NetworkTest, ReadsAChangeBackFromWhatItSaves) {
    std::string const before = example("HypsometricSlice.telm");
    for (Change const& each : Changes) {
        Network network;
        network.execute(Script::read(before));
        network.set(each.place, each.text);
        Network again;
        again.execute(Script::read(network.save()));
        EXPECT_THAT(reports(again), IsEmpty());
        EXPECT_EQ(again.save(), network.save());
        if (!isAttribute(valuePathOf(each.place)->name)) {
            EXPECT_EQ(valueOf(again, each.place), valueOf(network, each.place)) << each.place;
        }
    }
}

TEST_F(NetworkTest, AdvancesTheGlobalTimeWithEachChange) {
    execute("Create/GlobalTime T\n");
    auto const age = [&] {
        return network_.object("T")->slot("value")->ownParameter()->ownValue()->ageable()->age();
    };
    Nucleo::Ageable::Stamp const first = age();
    network_.set("T.value", "0.1[0,1]@0.1");
    Nucleo::Ageable::Stamp const second = age();
    network_.set("T.value", "0.2[0,1]@0.1");
    EXPECT_LT(first, second);
    EXPECT_LT(second, age());
}

struct BadChange {
    char const* place;
    std::string text;
    char const* reason;
};

TEST_F(NetworkTest, RefusesABadChangeAndLeavesTheNetworkAsItWas) {
    BadChange const cases[] = {
        {"Camera", "1", "is no place of a value"},
        {"Camera.zoom{", "1", "is no place of a value"},
        {"Camra.zoom", "1", "there is no object 'Camra'; did you mean 'Camera'"},
        {"Camera.zom", "1", "did you mean 'zoom'?"},
        {"Camera.zoom", "wide", "the text 'wide' is no value"},
        {"Camera.zoom{Viewr1}", "1", "there is no context 'Viewr1'; did you mean 'Viewer1'"},
        {"Camera.status", "1", "has no parameter 'status'"},
        {"Camera.qTelm::Net::x", "left", "is no number"},
        {"Nobody.qTelm::Net::x", "1", "there is no object 'Nobody'"},
        {"UserColors.color1", "(1,1,1,1)", "the object 'UserColors' could not be created"},
        {"qTelmMainWindow.title", "two\nlines", "cannot stand in a saved network"},
        {"qTelmMainWindow.title", std::string(1 << 20, 'x'), "cannot stand in a saved network"},
        {"FieldSlice.colormap", "red", "the text 'red' is no value of the parameter 'colormap'"},
        {"Hypsometric_for_FieldSlice_colormap.options", " sideways", "is no value"},
    };
    std::string const first = example("HypsometricSlice.telm");
    network_.execute(Script::read(first));
    Network second;
    second.execute(Script::read(example("UserColorsRuler.telm")));
    for (BadChange const& each : cases) {
        bool const ofSecond = std::string(each.place).starts_with("UserColors");
        Network& network = ofSecond ? second : network_;
        std::string const before = network.save();
        try {
            network.set(each.place, each.text);
            ADD_FAILURE() << each.place << " was taken";
        } catch (CallError const& error) {
            EXPECT_THAT(error.what(), HasSubstr(each.reason));
        }
        EXPECT_EQ(network.save(), before);
    }
}

TEST_F(NetworkTest, KeepsWhatItCouldNotCarryOutWhenItSaves) {
    std::string const text =
        "# TelmScript Preliminiary Experimental \nnonsense\nColormaps/UserColors U\n"
        "U.color1=\"(1,0,0,1)\"\nCreate/GlobalTime T\nT.x=>U";
    network_.execute(Script::read(text));
    EXPECT_EQ(network_.save(), text);
}

TEST_F(NetworkTest, ShowsAChangeInThePicture) {
    network_.execute(Script::read(example("HypsometricSlice.telm")));
    network_.set("Viewer1.size", "120x80");
    auto const picture = [&] {
        Image const image = render(*network_.object("Viewer1"), network_.pool("Viewer1"));
        std::vector<Rgba8> pixels;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                pixels.push_back(image.at(x, y));
        return pixels;
    };
    auto const before = picture();
    ASSERT_EQ(before.size(), 120U * 80U);
    EXPECT_EQ(picture(), before) << "the same network gives the same picture";
    network_.set("Hypsometric_for_FieldSlice_colormap.options", "inverse");
    EXPECT_NE(picture(), before);
    network_.set("Hypsometric_for_FieldSlice_colormap.options", "-inverse");
    EXPECT_EQ(picture(), before);
    network_.set("Camera.zoom", "20");
    EXPECT_EQ(picture(), before) << "the viewer has a value of its own";
    network_.set("Camera.zoom{Viewer1}", "20");
    EXPECT_NE(picture(), before);
}

}  // namespace
}  // namespace workbench
