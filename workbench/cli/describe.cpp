/// `telmbench describe`: one entry, its parameters and its help.
#include "workbench/cli/commands.hpp"
#include "workbench/cli/json.hpp"
#include "workbench/cli/table.hpp"
#include "workbench/platform/StandardOutput.hpp"
#include "workbench/session/MapObject.hpp"
#include "workbench/session/ParameterFacts.hpp"

namespace workbench {

namespace {

constexpr char Examples[] = R"(Examples:
  telmbench describe Hypsometric
      The parameters of the entry, with the texts that --set takes elsewhere.
  telmbench describe Colormaps/Hypsometric --json
      The same by its full key, for other programs to read.)";

std::vector<std::string> outputsOf(Orlo::VObject const& object) {
    std::vector<std::string> names;
    object.iterateOutputs([&](Orlo::SlotPtr const& slot) { names.push_back(slot->name()); });
    return names;
}

/// A limit as the number that its text is, if it is one.
Json limitAsJson(std::string const& text) {
    Json number = readJson(text);
    if (number.is_number())
        return number;
    return text.empty() ? Json() : Json(text);
}

Json parameterAsJson(ParameterFacts const& parameter) {
    return {{"name", parameter.name},
            {"type", parameter.type},
            {"default", parameter.defaultText},
            {"expertLevel", parameter.expertLevel},
            {"min", limitAsJson(parameter.min)},
            {"max", limitAsJson(parameter.max)}};
}

std::string asJson(MapObject const& subject) {
    Json parameters = Json::array();
    for (ParameterFacts const& each : parametersOf(subject.object()))
        parameters.push_back(parameterAsJson(each));
    Orlo::VObject const& object = subject.object();
    return jsonDocument({{"key", subject.key()},
                         {"size", subject.map().getSize()},
                         {"min", subject.map().getMin()},
                         {"max", subject.map().getMax()},
                         {"outputs", outputsOf(object)},
                         {"parameters", parameters},
                         {"help",
                          {{"short", object.help(Orlo::VObject::ShortHelp)},
                           {"link", object.help(Orlo::VObject::HelpLink)},
                           {"long", object.help(Orlo::VObject::LongHelp)}}}});
}

std::string parametersAsText(Orlo::VObject const& object) {
    std::vector<ParameterFacts> const parameters = parametersOf(object);
    if (parameters.empty())
        return "No parameters.\n";
    std::vector<TableRow> rows{{"name", "type", "default", "expert level", "min", "max"}};
    auto const orDash = [](std::string const& text) { return text.empty() ? "-" : text; };
    for (ParameterFacts const& each : parameters)
        rows.push_back({"'" + each.name + "'", each.type, "'" + each.defaultText + "'",
                        std::to_string(each.expertLevel), orDash(each.min), orDash(each.max)});
    return "Parameters, with their texts between quotes:\n" + table(rows, "    ");
}

std::string asText(MapObject const& subject) {
    Orlo::Colormap const& map = subject.map();
    Orlo::VObject const& object = subject.object();
    std::string text = subject.key() + "\n    " + std::to_string(map.getSize()) +
                       " colours over the values from " + std::to_string(map.getMin()) + " to " +
                       std::to_string(map.getMax()) + "\n\n" + parametersAsText(object);
    std::string const brief = object.help(Orlo::VObject::ShortHelp);
    std::string const link = object.help(Orlo::VObject::HelpLink);
    std::string const full = object.help(Orlo::VObject::LongHelp);
    auto const add = [&](char const* title, std::string const& help) {
        text += "\n" + std::string(title) + ":\n    " + help + "\n";
    };
    if (!brief.empty())
        add("Help", brief);
    if (!link.empty() && link != brief)
        add("Link of the help", link);
    if (!full.empty() && full != brief)
        add("Long help", full);
    return text;
}

void run(SessionOptions const& common, std::string const& key, bool json) {
    StandardOutput output(json);
    Session const session(common);
    MapObject const subject(session, key);
    output.write(json ? asJson(subject) : asText(subject));
}

}  // namespace

void addDescribe(CLI::App& program, SessionOptions const& common) {
    struct Arguments {
        std::string key;
        bool json = false;
    };
    CLI::App* const command = program.add_subcommand(
        "describe", "Tell the parameters, the size and the help of an entry");
    auto const given = std::make_shared<Arguments>();
    command->add_option("KEY", given->key, "Full key, or name, of the entry")->required();
    command->add_flag("--json", given->json, "Write JSON");
    command->footer(Examples);
    command->callback([&common, given] { run(common, given->key, given->json); });
}

}  // namespace workbench
