#include "workbench/serve/command.hpp"

#include <algorithm>
#include <map>

#include "workbench/serve/Studio.hpp"

namespace workbench {

namespace {

using std::string;

string pathOf(ParameterLine const& line) {
    string const path = line.object + "." + line.name;
    return line.context.empty() ? path : path + "{" + line.context + "}";
}

using Values = std::map<string, string>;

/// The values of a script by their places.
Values valuesOf(Script const& script) {
    Values values;
    for (Line const& line : script.lines)
        if (auto const* const value = std::get_if<ParameterLine>(&line.meaning))
            values[pathOf(*value)] = value->value;
    return values;
}

/// All that is neither a value nor a place in the network editor.
std::vector<string> structureOf(Script const& script) {
    std::vector<string> lines;
    for (Line const& line : script.lines)
        if (!std::holds_alternative<ParameterLine>(line.meaning) &&
            !std::holds_alternative<AttributeLine>(line.meaning) &&
            !std::holds_alternative<BlankLine>(line.meaning))
            lines.push_back(line.text);
    return lines;
}

}  // namespace

string shellWord(string const& text) {
    constexpr char const* Plain =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-./=:,@+";
    if (!text.empty() && text.find_first_not_of(Plain) == string::npos)
        return text;
    string word = "'";
    for (char const each : text)
        word += each == '\'' ? string("'\\''") : string(1, each);
    return word + "'";
}

string commandFor(CommandFiles const& files, Script const& file, Script const& present,
                  std::function<string(ValuePath const&)> const& textAt) {
    if (structureOf(file) != structureOf(present))
        throw Conflict(
            "no settings of the file make this picture, since nodes or connections have changed; "
            "save the network first, and run that");
    Values const before = valuesOf(file);
    Values now = valuesOf(present);
    for (auto const& [path, value] : before)
        if (!now.contains(path))
            now[path] = textAt(*valuePathOf(path));
    string command = "telmbench";
    for (string const& plugin : files.plugins)
        command += " --plugin " + shellWord(plugin);
    command += " run " + shellWord(files.network);
    for (auto const& [path, value] : now)
        if (auto const known = before.find(path); known == before.end() || known->second != value)
            command.append(" --set ").append(shellWord(string(path).append("=").append(value)));
    return command + " -o picture.png";
}

}  // namespace workbench
