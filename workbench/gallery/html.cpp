#include "workbench/gallery/html.hpp"

#include <charconv>
#include <cmath>
#include <cstdint>

#include "workbench/picture/png.hpp"

namespace workbench {

namespace {

constexpr std::string_view Replacement = "\xef\xbf\xbd";
constexpr std::string_view Minus = "\xe2\x88\x92";

std::string_view escaped(char const& letter) {
    switch (letter) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    case '\n':
    case '\t':
        return {&letter, 1};
    default:
        bool const control = static_cast<unsigned char>(letter) < 0x20 || letter == 0x7f;
        return control ? Replacement : std::string_view(&letter, 1);
    }
}

/// A whole number in raised digits.
std::string raised(std::string_view number) {
    static constexpr std::string_view Digits[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string text = number.starts_with('-') ? "⁻" : "";
    number.remove_prefix(std::min(number.find_first_not_of("+-0"), number.size()));
    for (char const digit : number)
        text += Digits[digit - '0'];
    return text;
}

}  // namespace

std::string escapeHtml(std::string_view text) {
    std::string html;
    for (char const& letter : text)
        html += escaped(letter);
    return html;
}

std::string element(std::string_view tag, std::string_view attributes, std::string_view content) {
    std::string html = "<";
    html += tag;
    if (!attributes.empty())
        (html += ' ') += attributes;
    (html += '>') += content;
    ((html += "</") += tag) += '>';
    return html;
}

std::string readable(double value) {
    char digits[64];
    auto const [end, error] = std::to_chars(digits, digits + sizeof digits, std::abs(value),
                                            std::chars_format::general, 4);
    std::string_view number(digits, static_cast<std::size_t>(end - digits));
    std::string text(value < 0.0 ? Minus : "");
    std::size_t const power = std::isfinite(value) ? number.find('e') : std::string_view::npos;
    if (power == std::string_view::npos)
        return text += number;
    if (number.substr(0, power) != "1")
        (text += number.substr(0, power)) += " × ";
    return text += "10" + raised(number.substr(power + 1));
}

std::string base64(std::string_view bytes) {
    static constexpr char Letters[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    auto const byte = [&](std::size_t i) {
        return i < bytes.size() ? std::uint32_t{static_cast<unsigned char>(bytes[i])} : 0U;
    };
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t const three = byte(i) << 16 | byte(i + 1) << 8 | byte(i + 2);
        for (unsigned letter = 0; letter < 4; ++letter)
            text += i + letter > bytes.size() ? '=' : Letters[three >> (18 - 6 * letter) & 63];
    }
    return text;
}

std::string dataUri(Image const& image) {
    return "data:image/png;base64," + base64(encodePng(image));
}

}  // namespace workbench
