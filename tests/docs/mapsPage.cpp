#include "tests/docs/mapsPage.hpp"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <vector>

#include "tests/support/Process.hpp"
#include "tests/workbench/picture/readPng.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/picture/text.hpp"

namespace tests {

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;
using workbench::Image;
using workbench::readFile;

constexpr int RampWidth = 256;
constexpr int RampHeight = 32;

std::string telmbench(std::vector<std::string> const& arguments) {
    ProcessResult const result = runProcess(programBeside("telmbench"), arguments);
    if (result.status != 0)
        throw std::runtime_error("telmbench: " + result.err);
    return result.out;
}

struct Entry {
    std::string name;
    Json catalogue;    ///< as the catalogue has it
    Json description;  ///< as `describe` has it
    std::string ramp;  ///< a PNG
};

std::string ramp(std::string const& key) {
    TemporaryFolder const folder;
    fs::path const file = folder / "ramp.png";
    telmbench({"ramp", key, "--size", std::to_string(RampWidth) + "x" + std::to_string(RampHeight),
               "-o", workbench::textOf(file)});
    return readFile(file);
}

/// All entries, by name.
std::vector<Entry> allEntries() {
    std::vector<Entry> entries;
    for (Json const& each : Json::parse(telmbench({"catalogue", "--json"}))) {
        std::string const key = each["key"];
        entries.push_back({.name = key.substr(key.find_last_of('/') + 1),
                           .catalogue = each,
                           .description = Json::parse(telmbench({"describe", key, "--json"})),
                           .ramp = ramp(key)});
    }
    std::ranges::sort(entries, {}, &Entry::name);
    return entries;
}

/// The source that makes an entry, below the root. The catalogue has it without
/// its ending, or, for an entry with no more than a key, not at all.
std::string sourceOf(Entry const& entry, fs::path const& root) {
    if (Json const& named = entry.catalogue["source"]; !named.is_null())
        return std::string(named) + ".cpp";
    std::string const key = "\"" + std::string(entry.catalogue["key"]) + "\"";
    for (auto const& each : fs::directory_iterator(root / "prism/tinctures"))
        if (each.path().extension() == ".cpp" && readFile(each).find(key) != std::string::npos)
            return "prism/tinctures/" + workbench::textOf(each.path().filename());
    throw std::runtime_error("no source makes " + key);
}

/// The words at the head of a source, as one paragraph.
std::string headOf(fs::path const& source) {
    std::string const text = readFile(source), mark = "/// ";
    std::string words;
    for (std::size_t at = 0; text.compare(at, mark.size(), mark) == 0;) {
        std::size_t const end = text.find('\n', at);
        std::string line = text.substr(at + mark.size(), end - at - mark.size());
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        words += (words.empty() ? "" : "\n") + line;
        at = end + 1;
    }
    return words;
}

std::string orDash(Json const& bound) {
    return bound.is_null() ? "–" : bound.dump();
}

std::string parametersOf(Entry const& entry) {
    Json const& parameters = entry.description["parameters"];
    if (parameters.empty())
        return "It has no parameters.\n";
    std::string table =
        "| parameter | type | default | expert level | min | max |\n"
        "| --- | --- | --- | --- | --- | --- |\n";
    for (Json const& each : parameters)
        table += "| `" + std::string(each["name"]) + "` | " + std::string(each["type"]) + " | `" +
                 std::string(each["default"]) + "` | " +
                 std::to_string(each["expertLevel"].get<int>()) + " | " + orDash(each["min"]) +
                 " | " + orDash(each["max"]) + " |\n";
    return table;
}

std::string sectionOf(Entry const& entry, fs::path const& root) {
    std::string const source = sourceOf(entry, root);
    return "\n## " + entry.name + "\n\n![Ramp of " + entry.name + "](maps/" + entry.name +
           ".png)\n\n" + headOf(root / source) + " It has " +
           std::to_string(entry.description["size"].get<int>()) + " colours.\n\n`" +
           std::string(entry.catalogue["key"]) + "`, from [`" + source + "`](../" + source +
           ").\n\n" + parametersOf(entry);
}

std::string page(std::vector<Entry> const& entries, fs::path const& root) {
    std::string text =
        "# The maps\n"
        "\n"
        "All entries of the catalogue by name, each with its colours from 0 to 1, left to\n"
        "right, as an object has them whose parameters nobody has set. The expert level of a\n"
        "parameter tells how seldom users need it, 0 being for everybody; min and max are\n"
        "advice to user interfaces, and clamp nothing. Defaults are the texts that\n"
        "`telmbench --set` and saved networks take. What becomes of an object's map when it\n"
        "is updated, [the architecture](architecture.md#the-way-of-a-colour) tells.\n"
        "\n"
        "`scripts/document-maps` makes this page and its pictures of what the program says,\n"
        "and the suite holds them to it.\n";
    for (Entry const& entry : entries)
        text += sectionOf(entry, root);
    return text;
}

void draw(Image& image, Image const& part, int left, int top) {
    for (int y = 0; y < part.height(); ++y)
        for (int x = 0; x < part.width(); ++x)
            image.at(left + x, top + y) = part.at(x, y);
}

/// All ramps under their names, in three columns read from top to bottom.
std::string sheet(std::vector<Entry> const& entries) {
    constexpr int Columns = 3, Gap = 16, TextScale = 2;
    constexpr workbench::Rgba8 Paper{255, 255, 255, 255}, Ink{40, 40, 40, 255},
        Frame{160, 160, 160, 255};
    int const title = workbench::textHeight(TextScale);
    int const rows = (static_cast<int>(entries.size()) + Columns - 1) / Columns;
    int const rowHeight = title + RampHeight + Gap;
    Image image(Gap + Columns * (RampWidth + Gap), Gap + rows * rowHeight, Paper);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        int const left = Gap + static_cast<int>(i) / rows * (RampWidth + Gap);
        int const top = Gap + static_cast<int>(i) % rows * rowHeight;
        workbench::drawText(image, left, top, entries[i].name, Ink, TextScale);
        image.fill(left - 1, top + title - 1, RampWidth + 2, RampHeight + 2, Frame);
        draw(image, readPng(entries[i].ramp).value(), left, top + title);
    }
    return encodePng(image);
}

}  // namespace

std::map<std::string, std::string> mapsPage(fs::path const& sources) {
    std::vector<Entry> const entries = allEntries();
    std::map<std::string, std::string> files{{"maps.md", page(entries, sources)},
                                             {"maps.png", sheet(entries)}};
    for (Entry const& entry : entries)
        files["maps/" + entry.name + ".png"] = entry.ramp;
    return files;
}

}  // namespace tests
