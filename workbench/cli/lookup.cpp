/// `telmbench lookup`: the colours of single values.
#include <sstream>

#include "workbench/cli/commands.hpp"
#include "workbench/cli/json.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/platform/StandardOutput.hpp"
#include "workbench/session/MapObject.hpp"

namespace workbench {

namespace {

constexpr char Examples[] = R"(Examples:
  telmbench lookup Hypsometric 0 0.5 1
      A line for each value: the value, red, green, blue, alpha.
  telmbench lookup Topographic --set options=-inverse -0.5 0x1p-3 nan
      With a parameter set; values may be negative, hexadecimal, no number.
  seq 0 0.1 1 | telmbench lookup Hypsometric --json -
      Values from standard input, and the colours as JSON.

Colours are 32-bit floats in the shortest form that reads back to the same
float. Components outside 0 to 1 are what the map says; tables have alpha 0.)";

struct Arguments {
    std::string key;
    std::vector<std::string> settings;
    std::vector<std::string> values;
    bool json = false;
};

/// The number of one text; `where` tells which it is.
double valueOf(std::string const& text, std::string const& where) {
    if (std::optional<double> const value = readNumber(text))
        return *value;
    throw CallError(where + ", " + inQuotes(text) +
                    ", is no number within the range of a double, such as 0.5, -1e-3, 0x1p-4, "
                    "nan, inf or -inf");
}

/// All values on standard input, which blanks and line ends divide.
void appendStandardInput(std::vector<double>& values) {
    std::istringstream words(readStandardInput());
    std::size_t position = 0;
    for (std::string word; words >> word;)
        values.push_back(
            valueOf(word, "value " + std::to_string(++position) + " of standard input"));
}

std::vector<double> readValues(std::vector<std::string> const& texts) {
    std::vector<double> values;
    std::size_t position = 0;
    for (std::string const& text : texts) {
        ++position;
        if (text == "-")
            appendStandardInput(values);
        else
            values.push_back(valueOf(text, "value " + std::to_string(position)));
    }
    return values;
}

std::string asText(Orlo::Colormap const& map, std::vector<double> const& values) {
    std::string text;
    for (double const value : values)
        text += lookupLine(map, value) + "\n";
    return text;
}

std::string asJson(Orlo::Colormap const& map, std::vector<double> const& values) {
    Json lookups = Json::array();
    for (double const value : values) {
        Orlo::rgba_float_t const color = map.getColor(value);
        lookups.push_back({{"value", jsonNumber(value)},
                           {"red", jsonNumber(color.red())},
                           {"green", jsonNumber(color.green())},
                           {"blue", jsonNumber(color.blue())},
                           {"alpha", jsonNumber(color.alpha())}});
    }
    return jsonDocument(lookups);
}

void run(SessionOptions const& common, Arguments const& given) {
    StandardOutput output(given.json);
    Session const session(common);
    MapObject const subject(session, given.key, given.settings);
    std::vector<double> const values = readValues(given.values);
    output.write(given.json ? asJson(subject.map(), values) : asText(subject.map(), values));
}

}  // namespace

void addLookup(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command = program.add_subcommand("lookup", "Look up the colours of values");
    auto const given = std::make_shared<Arguments>();
    command->add_option("KEY", given->key, "Full key, or name, of the entry")->required();
    command->add_option("VALUE", given->values, "Value to look up; - reads standard input")
        ->required();
    command->add_option("--set", given->settings, "Set a parameter, as NAME=TEXT")
        ->allow_extra_args(false);
    command->add_flag("--json", given->json, "Write JSON");
    command->footer(Examples);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
