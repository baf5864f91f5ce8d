/// The shipped networks, executed.
#include <algorithm>
#include <map>
#include <set>

#include "tests/workbench/network/NetworkTest.hpp"
#include "workbench/nodes/HostObject.hpp"
#include "workbench/nodes/Viewer.hpp"

namespace workbench {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

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

}  // namespace
}  // namespace workbench
