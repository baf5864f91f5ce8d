/// What each form of line does, and what a line that cannot be executed gets.
#include "tests/workbench/network/NetworkTest.hpp"

namespace workbench {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

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

}  // namespace
}  // namespace workbench
