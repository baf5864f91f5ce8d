#include "workbench/export/notation.hpp"

#include <cmath>

#include "runtime/quartz/text.hpp"
#include "workbench/common/clamp.hpp"
#include "workbench/common/inQuotes.hpp"

namespace workbench {

using Orlo::rgba_float_t;

namespace {

std::string lastPart(std::string const& key) {
    return key.substr(key.find_last_of('/') + 1);
}

std::string accuracyOf(Model const& model, int levels) {
    double const error = model.error + (levels > 0 ? 0.5 / levels : 0.0);
    std::string const pieces =
        std::to_string(model.pieces.size()) + (model.pieces.size() == 1 ? " piece" : " pieces");
    if (error == 0.0)
        return pieces + " of one colour each, exactly as in the map";
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.5f", error);
    return pieces + "; components from 0 to 1 are within " + digits + " of the map's";
}

template <class Text>
std::string joined(std::size_t count, char const* separator, Text const& text) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += (i == 0 ? "" : separator) + text(i);
    return all;
}

}  // namespace

std::array<int, 4> bytesOf(rgba_float_t const& color) noexcept {
    std::array<int, 4> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<int>(std::lround(255.0 * clampToUnit(color[i])));
    return bytes;
}

std::string hexOf(rgba_float_t const& color) {
    std::array<int, 4> const bytes = bytesOf(color);
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(bytes[0]) & 0xffU,
                  static_cast<unsigned>(bytes[1]) & 0xffU, static_cast<unsigned>(bytes[2]) & 0xffU);
    return text;
}

std::string shortestText(double value) {
    return std::isnan(value) ? "nan" : Orlo::numberText(value);
}

std::string byteText(rgba_float_t const& color, std::size_t count, char const* separator) {
    std::array<int, 4> const bytes = bytesOf(color);
    return joined(count, separator, [&](std::size_t i) { return std::to_string(bytes[i]); });
}

std::string floatText(rgba_float_t const& color, std::size_t count, char const* separator) {
    return joined(count, separator, [&](std::size_t i) { return shortestText(double{color[i]}); });
}

std::vector<std::string> aboutLines(Model const& model, int levels) {
    Origin const& origin = model.origin;
    std::vector<std::string> lines{"Colour map " + origin.key + ", by " + origin.maker};
    if (!origin.description.empty())
        lines.push_back(origin.description);
    if (!origin.label.empty())
        lines.push_back("Label: " + origin.label);
    for (auto const& [name, text] : origin.parameters)
        lines.push_back(std::string("Parameter ").append(name).append(" = ").append(text));
    lines.push_back("Values from " + shortestText(model.range.min) + " to " +
                    shortestText(model.range.max) + ": " + accuracyOf(model, levels));
    lines.push_back("Made by: " + origin.command);
    for (std::string& line : lines)
        line = printable(line);
    return lines;
}

std::string comment(Model const& model, int levels, std::string_view mark) {
    std::string text;
    for (std::string const& line : aboutLines(model, levels))
        ((text += mark) += line) += "\n";
    return text;
}

std::string escapeXml(std::string_view text) {
    std::string xml;
    for (char const letter : text)
        switch (letter) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        case '"':
            xml += "&quot;";
            break;
        default:
            xml += letter;
        }
    return xml;
}

std::string plainName(Model const& model) {
    std::string name = lastPart(model.origin.key);
    for (char& letter : name)
        if (!((letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
              (letter >= '0' && letter <= '9')))
            letter = '_';
    return name.empty() || (name[0] >= '0' && name[0] <= '9') ? "map_" + name : name;
}

}  // namespace workbench
