/// The two networks that are shipped: their lines, their order, and their place
/// in the plug-in.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "workbench/common/files.hpp"
#include "workbench/network/Script.hpp"
#include "workbench/platform/LibraryTables.hpp"
#include "workbench/session/PluginFile.hpp"

namespace workbench {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr char First[] = "HypsometricSlice.telm";
constexpr char Second[] = "UserColorsRuler.telm";

std::string textOfExample(std::string const& name) {
    return readFile(std::filesystem::path(PRISM_EXAMPLES) / name);
}

std::vector<std::string> linesOf(std::string const& name) {
    std::vector<std::string> lines;
    for (Line const& line : Script::read(textOfExample(name)).lines)
        lines.push_back(line.text);
    return lines;
}

/// All lines of one form, in their order.
template <class Form>
std::vector<Form> all(Script const& script) {
    std::vector<Form> found;
    for (Line const& line : script.lines)
        if (auto const* const form = std::get_if<Form>(&line.meaning))
            found.push_back(*form);
    return found;
}

/// Index of the only line with that text.
std::size_t indexOf(std::vector<std::string> const& lines, std::string const& text) {
    EXPECT_EQ(std::ranges::count(lines, text), 1) << text;
    return static_cast<std::size_t>(std::ranges::find(lines, text) - lines.begin());
}

class Example : public ::testing::TestWithParam<char const*> {
protected:
    Script script_ = Script::read(textOfExample(GetParam()));
    std::vector<std::string> lines_ = linesOf(GetParam());
};
INSTANTIATE_TEST_SUITE_P(Both, Example, ::testing::Values(First, Second));

TEST_P(Example, HasOnlyLinesOfTheKnownFormsEndedByALineFeed) {
    EXPECT_FALSE(script_.endsOpen);
    for (Line const& line : script_.lines) {
        EXPECT_EQ(line.end, "\n") << line.number;
        EXPECT_FALSE(std::holds_alternative<UnreadableLine>(line.meaning)) << line.text;
    }
}

TEST_P(Example, HasItsSectionsInTheirOrder) {
    ASSERT_GT(lines_.size(), 3U);
    EXPECT_EQ(lines_[0], "# TelmScript Preliminiary Experimental ");
    EXPECT_EQ(lines_[1], "# VERBOSE");
    EXPECT_EQ(lines_[2], "");
    std::size_t const connections = indexOf(lines_, "# Establish Connections");
    std::size_t const setup = indexOf(lines_, "# Setup Objects");
    for (std::size_t const title : {connections, setup}) {
        EXPECT_EQ(lines_[title - 1], "#");
        EXPECT_EQ(lines_[title + 1], "#");
    }
    for (std::size_t i = 2; i < script_.lines.size(); ++i) {
        Meaning const& meaning = script_.lines[i].meaning;
        bool const free = std::holds_alternative<BlankLine>(meaning) ||
                          std::holds_alternative<CommentLine>(meaning);
        bool const connects = std::holds_alternative<ConnectionLine>(meaning);
        bool const sets = std::holds_alternative<SetupLine>(meaning);
        if (!free) {
            EXPECT_EQ(connects, i > connections && i < setup) << lines_[i];
            EXPECT_EQ(sets, i > setup) << lines_[i];
        }
    }
}

TEST_P(Example, HasTheHostsObjectsBeforeThoseThatItAdds) {
    bool added = false;
    for (Line const& line : script_.lines) {
        added = added || std::holds_alternative<CreationLine>(line.meaning);
        EXPECT_FALSE(added && std::holds_alternative<ExpectedLine>(line.meaning)) << line.text;
    }
}

TEST_P(Example, DeletesEachAddedObjectWithItsCommentFirst) {
    for (std::size_t i = 2; i < script_.lines.size(); ++i)
        if (auto const* const creation = std::get_if<CreationLine>(&script_.lines[i].meaning)) {
            EXPECT_EQ(lines_[i - 2], "# DELETE IF EXISTS " + creation->object);
            EXPECT_EQ(lines_[i - 1], "<>" + creation->object);
        }
}

TEST_P(Example, SortsTheConnectionsByTheConsumer) {
    std::vector<std::string> consumers;
    for (ConnectionLine const& line : all<ConnectionLine>(script_))
        consumers.push_back(line.object);
    EXPECT_TRUE(std::ranges::is_sorted(consumers));
}

TEST_P(Example, SetsUpEveryObjectOnceUpperCaseFirst) {
    std::set<std::string> objects;
    for (ExpectedLine const& line : all<ExpectedLine>(script_))
        EXPECT_TRUE(objects.insert(line.object).second) << line.object;
    for (CreationLine const& line : all<CreationLine>(script_))
        EXPECT_TRUE(objects.insert(line.object).second) << line.object;
    std::vector<std::string> setUp;
    for (SetupLine const& line : all<SetupLine>(script_))
        setUp.push_back(line.object);
    EXPECT_EQ(setUp, std::vector<std::string>(objects.begin(), objects.end()));
}

TEST_P(Example, GivesEachObjectTheFourAttributesInTheirOrder) {
    std::map<std::string, std::vector<std::string>> attributes;
    for (SetupLine const& line : all<SetupLine>(script_))
        attributes[line.object] = {};
    for (AttributeLine const& line : all<AttributeLine>(script_))
        attributes[line.object].push_back(line.name);
    for (auto const& [object, names] : attributes)
        EXPECT_THAT(names, ElementsAre("qTelm::Net::ExpertLevel", "qTelm::Net::status",
                                       "qTelm::Net::x", "qTelm::Net::y"))
            << object;
}

TEST_P(Example, HasParametersInFrontOfTheAttributesButForTwoLines) {
    std::set<std::string> seen;
    std::vector<std::string> late;
    for (Line const& line : script_.lines) {
        if (std::holds_alternative<AttributeLine>(line.meaning))
            seen.insert(objectOf(line.meaning));
        else if ((std::holds_alternative<ParameterLine>(line.meaning) ||
                  std::holds_alternative<PropertyLine>(line.meaning) ||
                  std::holds_alternative<NoteLine>(line.meaning)) &&
                 seen.contains(objectOf(line.meaning)))
            late.push_back(line.text);
    }
    if (GetParam() == std::string(First))
        EXPECT_THAT(late,
                    ElementsAre("theBundle.Threads=\"\"", "# Note: theField.status is not saved."));
    else
        EXPECT_THAT(late, ElementsAre());
}

TEST_P(Example, HasTheLineOfAContextInFrontOfThePlainOne) {
    std::size_t contexts = 0;
    for (std::size_t i = 0; i < script_.lines.size(); ++i) {
        auto const* const line = std::get_if<ParameterLine>(&script_.lines[i].meaning);
        if (line == nullptr || line->context.empty())
            continue;
        ++contexts;
        EXPECT_EQ(line->object, "Camera");
        EXPECT_EQ(line->context, "Viewer1");
        auto const* const plain = std::get_if<ParameterLine>(&script_.lines[i + 1].meaning);
        ASSERT_NE(plain, nullptr) << lines_[i];
        EXPECT_EQ(plain->name, line->name);
        EXPECT_EQ(plain->context, "");
    }
    EXPECT_GT(contexts, 0U);
}

TEST_P(Example, HasPropertyLinesRightBehindTheirParameter) {
    for (std::size_t i = 1; i < script_.lines.size(); ++i) {
        auto const* const property = std::get_if<PropertyLine>(&script_.lines[i].meaning);
        if (property == nullptr)
            continue;
        if (auto const* const other = std::get_if<PropertyLine>(&script_.lines[i - 1].meaning)) {
            EXPECT_EQ(other->parameter, property->parameter) << lines_[i];
            continue;
        }
        auto const* const parameter = std::get_if<ParameterLine>(&script_.lines[i - 1].meaning);
        ASSERT_NE(parameter, nullptr) << lines_[i];
        EXPECT_EQ(parameter->name, property->parameter);
        EXPECT_EQ(parameter->context, "");
    }
}

TEST_P(Example, HasAllTypedProperties) {
    std::set<std::string> kinds;
    for (PropertyLine const& line : all<PropertyLine>(script_))
        kinds.insert(line.type + "(" + line.name + ")");
    EXPECT_THAT(kinds, ElementsAre("bool(allowTmaxAdjustment)", "bool(allowTminAdjustment)",
                                   "double(max)", "double(min)", "int32_t(max)", "int32_t(min)"));
}

// --- the first network

using ObjectAndKey = std::pair<std::string, std::string>;

std::vector<ObjectAndKey> objectsOf(std::string const& example) {
    std::vector<ObjectAndKey> objects;
    for (Line const& line : Script::read(textOfExample(example)).lines) {
        if (auto const* const expected = std::get_if<ExpectedLine>(&line.meaning))
            objects.emplace_back(expected->object, expected->key);
        if (auto const* const created = std::get_if<CreationLine>(&line.meaning))
            objects.emplace_back(created->object, created->key);
    }
    return objects;
}

constexpr char Map[] = "Hypsometric_for_FieldSlice_colormap";

TEST(FirstExample, HasItsObjects) {
    EXPECT_EQ(objectsOf(First), (std::vector<ObjectAndKey>{
                                    {"Camera", "CameraControl"},
                                    {"CameraLens", ""},
                                    {"CameraTripod", ""},
                                    {"HeadShine", "Headlight"},
                                    {"qTelmMainWindow", ""},
                                    {"Network", ""},
                                    {"Scribe", ""},
                                    {"SQLOnlineInterface", ""},
                                    {"ImportanceView", ""},
                                    {"ChartSelector", ""},
                                    {"qTelmStandardMetaViewer", ""},
                                    {"Viewer1", ""},
                                    {"Viewer1FrameBuffer", ""},
                                    {"Viewer2", ""},
                                    {"Viewer2FrameBuffer", ""},
                                    {"DefaultScene", ""},
                                    {"WebTelm", "Create/Webserver"},
                                    {"GlobalTime", "Create/GlobalTime"},
                                    {"theBundle", "CreateBundle/RadialScalarField"},
                                    {"theGrid", "Strand/Grid"},
                                    {"theField", "Strand/Scalarfield"},
                                    {Map, "Colormaps/Hypsometric"},
                                    {"FieldSlice", "Display/OrthoSlice"},
                                    {std::string(Map) + "1", "Legend/ColorLegend"},
                                }));
}

TEST(FirstExample, HasTheLinesThatWireTheColorMap) {
    std::vector<std::string> const lines = linesOf(First);
    for (char const* const line :
         {"Colormaps/Hypsometric Hypsometric_for_FieldSlice_colormap",
          "FieldSlice.colormap=>Hypsometric_for_FieldSlice_colormap",
          "Legend/ColorLegend Hypsometric_for_FieldSlice_colormap1",
          "Hypsometric_for_FieldSlice_colormap1.colormap=>Hypsometric_for_FieldSlice_colormap",
          "Hypsometric_for_FieldSlice_colormap1.chart=>ChartSelector",
          "DefaultScene.Hypsometric_for_FieldSlice_colormap1.renderable=>"
          "Hypsometric_for_FieldSlice_colormap1",
          "Hypsometric_for_FieldSlice_colormap()",
          "Hypsometric_for_FieldSlice_colormap.qTelm::Net::ExpertLevel=\"0\"",
          "Hypsometric_for_FieldSlice_colormap.qTelm::Net::status="
          "\"visible{visible}{icon}{hidden}\"",
          "Hypsometric_for_FieldSlice_colormap.qTelm::Net::x=\"22\"",
          "Hypsometric_for_FieldSlice_colormap.qTelm::Net::y=\"370\""})
        indexOf(lines, line);
}

TEST(FirstExample, HasTheConnectionsThatCarryTheData) {
    std::vector<std::string> const lines = linesOf(First);
    for (char const* const line :
         {"theGrid.spacetime=>theBundle", "theField.grid=>theGrid",
          "theField.time=>GlobalTime.value", "ChartSelector.::atlas=>theGrid",
          "FieldSlice.scalarfield=>theField", "FieldSlice.chart=>ChartSelector",
          "Camera.time=>GlobalTime.value", "DefaultScene.FieldSlice.renderable=>FieldSlice",
          "Viewer1.scene=>DefaultScene", "Viewer2.scene=>DefaultScene"})
        indexOf(lines, line);
    EXPECT_THAT(lines, Contains(::testing::AllOf(HasSubstr("WebTelm."),
                                                 HasSubstr("=>Viewer1FrameBuffer"))));
}

TEST(FirstExample, HasTheValuesThatAreFixed) {
    std::vector<std::string> const lines = linesOf(First);
    for (char const* const line :
         {R"(Viewer1.size="1046x650")", R"(Viewer2.size="100x30")",
          R"(GlobalTime.value="0[0,1]@0.1")", R"(theBundle.gridsize="32")", R"(theBundle.size="1")",
          R"(theBundle.timesteps="10")",
          R"(theGrid.gridname="AnalyticUniformGrid@AnalyticUniformGrid")",
          R"(theField.fieldname="radialfield@radialfield")", R"(FieldSlice.datarange="0,1")",
          R"(FieldSlice.mode="Interpolated{Discrete}{Interpolated}{Smooth}")",
          R"(FieldSlice.orientation="Y{X}{Y}{Z}")",
          R"(FieldSlice.textureprecision="8bit{8bit}{16bit}")", R"(FieldSlice.transparency="1")",
          R"x(Hypsometric_for_FieldSlice_colormap1.bordercolor="(1,1,1,1)")x",
          R"(Hypsometric_for_FieldSlice_colormap1.position="0.03x0.03")",
          R"(Camera.zoom{Viewer1}="45")", "Camera.zoom.double(max)=140"})
        indexOf(lines, line);
}

TEST(FirstExample, NamesNoParameterOfTheColorMap) {
    for (ParameterLine const& line : all<ParameterLine>(Script::read(textOfExample(First))))
        EXPECT_NE(line.object, Map);
}

TEST(FirstExample, HasTheColorMapBetweenTheFieldAndTheSlice) {
    std::vector<std::string> const lines = linesOf(First);
    std::size_t const map = indexOf(lines, "Colormaps/Hypsometric " + std::string(Map));
    EXPECT_LT(indexOf(lines, "Strand/Scalarfield theField"), map);
    EXPECT_GT(indexOf(lines, "Display/OrthoSlice FieldSlice"), map);
}

TEST(FirstExample, HasEveryFormOfValue) {
    std::vector<std::string> const lines = linesOf(First);
    for (char const* const form :
         {"=\"45\"", "=\"0.199999980000002\"", "=\"9.99999899420345e-06\"", "=\"true\"",
          "=\"{0,2.43229222888432,1}\"", "=\"[{0,0,0};{0,0,0}]\"", "=\"0,1\"", "=\"0[0,1]@0.1\"",
          "=\"(1,1,1,1)\"", "=\" -Orthographic\"", "=\"1046x650\"", "=\"radialfield@radialfield\"",
          "=\"A TransformOperator Object.\"", "=\"A Frame buffer.\"", "=\"\""})
        EXPECT_THAT(lines, Contains(::testing::EndsWith(form)));
}

// --- the second network

TEST(SecondExample, HasTheHostsObjectsOfTheFirstButOneAndItsOwn) {
    std::vector<ObjectAndKey> expected = objectsOf(First);
    std::erase(expected, ObjectAndKey("SQLOnlineInterface", ""));
    auto const own = std::ranges::find(expected, "theBundle", &ObjectAndKey::first);
    expected.erase(own, expected.end());
    for (ObjectAndKey const& object : {ObjectAndKey("Range100", "Create/Range100"),
                                       ObjectAndKey("UserColors", "Colormaps/UserColors"),
                                       ObjectAndKey("UserColors1", "Legend/ColorLegend"),
                                       ObjectAndKey("ShowRangeForRange100", "Legend/ShowRange")})
        expected.push_back(object);
    EXPECT_EQ(objectsOf(Second), expected);
}

TEST(SecondExample, HasItsWiringAndValues) {
    std::vector<std::string> const lines = linesOf(Second);
    for (char const* const line :
         {"UserColors.datarange=>Range100", "UserColors1.colormap=>UserColors",
          "UserColors1.chart=>ChartSelector", "ShowRangeForRange100.range=>Range100",
          "ShowRangeForRange100.chart=>ChartSelector",
          "DefaultScene.UserColors1.renderable=>UserColors1",
          "DefaultScene.ShowRangeForRange100.renderable=>ShowRangeForRange100",
          R"(Range100.mode="MinMax{MinMax}{ScaleOffset}")", R"(Range100.scale="100")",
          R"(ShowRangeForRange100.position="0.05x0.025")",
          R"(UserColors.qTelm::Net::ExpertLevel="10")"})
        indexOf(lines, line);
}

TEST(SecondExample, HasNineColorsWithTheirLocations) {
    std::vector<std::string> expected{"colorend", "colorstart", "interpolation"};
    std::vector<std::string> bounds;
    for (int i = 1; i <= 9; ++i) {
        expected.push_back("color" + std::to_string(i));
        expected.push_back("lcoation" + std::to_string(i));
        for (char const* const bound : {"max", "min"})
            bounds.push_back("lcoation" + std::to_string(i) + ".double(" + bound + ")");
    }
    Script const script = Script::read(textOfExample(Second));
    std::vector<std::string> names;
    for (ParameterLine const& line : all<ParameterLine>(script))
        if (line.object == "UserColors")
            names.push_back(line.name);
    EXPECT_EQ(names, expected);
    std::vector<std::string> properties;
    for (PropertyLine const& line : all<PropertyLine>(script))
        if (line.object == "UserColors")
            properties.push_back(line.parameter + "." + line.type + "(" + line.name + ")");
    EXPECT_EQ(properties, bounds);
}

TEST(SecondExample, HasNoObjectOfThisLibrary) {
    for (CreationLine const& line : all<CreationLine>(Script::read(textOfExample(Second))))
        if (line.key.starts_with("Colormaps/")) {
            EXPECT_EQ(line.key, "Colormaps/UserColors");
        }
}

// --- in the plug-in

TEST(PluginFile, CarriesBothExamplesOneBehindTheOther) {
    std::string const plugin = readFile(pluginBesideProgram());
    std::string const zero(1, '\0');
    std::string const texts = textOfExample(First) + zero + textOfExample(Second) + zero;
    std::size_t const at = plugin.find(texts);
    ASSERT_NE(at, std::string::npos);
    EXPECT_EQ(plugin.find(texts, at + 1), std::string::npos) << "each text stands once";
}

TEST(PluginFile, CarriesThemInItsWritableData) {
    LibraryTables const plugin(pluginBesideProgram());
    std::vector<std::string> holders;
    for (auto const& [name, content] : plugin.sections)
        if (content.find(textOfExample(First)) != std::string::npos)
            holders.push_back(name);
    EXPECT_THAT(holders, testing::ElementsAre(".data"));
    EXPECT_THAT(plugin.writable, testing::Contains(".data"));
    EXPECT_THAT(plugin.writable, testing::Not(testing::Contains(".text")));
}

}  // namespace
}  // namespace workbench
