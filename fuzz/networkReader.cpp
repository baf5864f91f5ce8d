/// Random texts for the reader of saved networks.
///
/// What is accepted is written back byte for byte, and reads equal again; so
/// does the text that each line is written as from what it means. A value put
/// into a script changes the lines of its place and no other.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/require.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/network/Script.hpp"
#include "workbench/network/editScript.hpp"

using namespace workbench;

namespace {

/// The line behind an announcement is only understood there.
bool standsAlone(Meaning const& meaning) {
    auto const* const expected = std::get_if<ExpectedLine>(&meaning);
    return expected == nullptr || expected->key.empty();
}

void checkLine(Line const& line) {
    auto const written = textOf(line.meaning);
    if (!written || !standsAlone(line.meaning))
        return;
    require(meaningOf(*written) == line.meaning, "a line reads differently when written", *written);
    require(
        !objectOf(line.meaning).empty() || std::holds_alternative<AnnouncementLine>(line.meaning),
        "a line is about nothing", line.text);
}

void checkChange(Script const& script, ParameterLine const& parameter) {
    Script changed = script;
    writeValue(changed, {parameter.object, parameter.name, parameter.context}, "1", {});
    std::size_t const added = changed.lines.size() - script.lines.size();
    require(added <= 1, "more than one line is added", parameter.object);
    std::size_t differing = 0;
    for (std::size_t i = 0, j = 0; i < script.lines.size(); ++i, ++j) {
        if (added == 1 && i == j && script.lines[i].text != changed.lines[j].text)
            ++j;  // the new line, whose object was made behind the old one
        differing += script.lines[i].text == changed.lines[j].text ? 0U : 1U;
    }
    require(differing + added <= 1, "more than one line differs", changed.write());
    Script const again = Script::read(changed.write());
    require(again.lines.size() == changed.lines.size(), "a change is not read back",
            changed.write());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const text(reinterpret_cast<char const*>(data), size);
    Script script;
    try {
        script = Script::read(text);
    } catch (WorkError const&) {
        return 0;
    }
    require(script.write() == text, "a script is not written as it was read", text);
    require(Script::read(script.write()).lines == script.lines, "a script reads differently", text);
    for (Line const& line : script.lines)
        checkLine(line);
    for (Line const& line : script.lines)
        if (auto const* const parameter = std::get_if<ParameterLine>(&line.meaning)) {
            checkChange(script, *parameter);
            break;
        }
    return 0;
}
