/// `telmbench catalogue`: what the plug-ins can make.
#include "workbench/cli/commands.hpp"
#include "workbench/cli/json.hpp"
#include "workbench/cli/table.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/StandardOutput.hpp"
#include "workbench/session/Session.hpp"
#include "workbench/session/entries.hpp"

namespace workbench {

namespace {

using Orlo::VCreatorBase;

constexpr char Examples[] = R"(Examples:
  telmbench catalogue
      Lists what the plug-in beside the program can make.
  telmbench --plugin ./other.telm catalogue --json
      The same for another plug-in, for other programs to read.
  telmbench --plugin ./prism_tinctures.telm --plugin ./others catalogue
      What a plug-in and all those in a folder can make, and which one makes it.)";

std::vector<std::string> preferenceWords(VCreatorBase const& entry) {
    Orlo::PreferencesPtr const& preferences = entry.preferences();
    if (!preferences)
        return {};
    return {preferences->words().begin(), preferences->words().end()};
}

std::string joined(std::vector<std::string> const& words) {
    std::string text;
    for (std::string const& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

/// A text of the entry, which may be empty; null where it sets none.
Json textAsJson(VCreatorBase const& entry, VCreatorBase::Key key) {
    return entry.isSet(key) ? Json(entry.get(key)) : Json();
}

Json entryAsJson(VCreatorBase const& entry, PluginFile const& plugin) {
    return {{"key", entry.keyname("/")},
            {"order", entry.orderNumber()},
            {"preferences", preferenceWords(entry)},
            {"description", textAsJson(entry, VCreatorBase::Description)},
            {"tags", tagsOf(entry)},
            {"source", textAsJson(entry, VCreatorBase::Source)},
            {"date", textAsJson(entry, VCreatorBase::Date)},
            {"todo", textAsJson(entry, VCreatorBase::Todo)},
            {"module", plugin.module()},
            {"plugin", textOf(plugin.path())}};
}

/// The line of the description, which may be set and yet empty; nothing where none
/// is set.
std::string descriptionAsText(VCreatorBase const& entry) {
    std::string const& text = entry.get(VCreatorBase::Description);
    if (!entry.isSet(VCreatorBase::Description))
        return {};
    return "    " + (text.empty() ? "(an empty description)" : text) + "\n";
}

/// The key, and below it what the entry says of itself. Where it comes from is told
/// where there is a choice.
std::string entryAsText(VCreatorBase const& entry, Session const& session) {
    std::vector<TableRow> rows{{"order", std::to_string(entry.orderNumber())}};
    auto const add = [&](char const* label, std::string const& text) {
        if (!text.empty())
            rows.push_back({label, text});
    };
    add("preferences", joined(preferenceWords(entry)));
    add("tags", entry.get(VCreatorBase::Tags));
    add("source", entry.get(VCreatorBase::Source));
    add("date", entry.get(VCreatorBase::Date));
    add("to do", entry.get(VCreatorBase::Todo));
    if (session.pluginCount() > 1)
        add("plug-in", session.pluginOf(entry).module());
    return entry.keyname("/") + "\n" + descriptionAsText(entry) + table(rows, "    ") + "\n";
}

std::string asJson(Session const& session) {
    Json entries = Json::array();
    for (auto const& entry : session.entries())
        entries.push_back(entryAsJson(*entry, session.pluginOf(*entry)));
    return jsonDocument(entries);
}

std::string asText(Session const& session) {
    std::string text;
    for (auto const& entry : session.entries())
        text += entryAsText(*entry, session);
    std::size_t const count = session.entries().size();
    return text + std::to_string(count) + (count == 1 ? " entry\n" : " entries\n");
}

void run(SessionOptions const& common, bool json) {
    StandardOutput output(json);
    Session const session(common);
    output.write(json ? asJson(session) : asText(session));
}

}  // namespace

void addCatalogue(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command = program.add_subcommand(
        "catalogue", "List the entries of the plug-ins, in the order of their registration");
    auto const json = std::make_shared<bool>(false);
    command->add_flag("--json", *json, "Write JSON");
    command->footer(Examples);
    command->callback([&common, json] { run(common, *json); });
}

}  // namespace workbench
