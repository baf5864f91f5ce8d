#include "workbench/cli/numbers.hpp"

#include <charconv>
#include <cmath>

#include "runtime/quartz/text.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/picture/Image.hpp"

namespace workbench {

namespace {

bool isHexadecimal(std::string_view text) {
    return text.starts_with("0x") || text.starts_with("0X");
}

bool isPictureSide(int pixels) {
    return pixels >= 1 && pixels <= Image::MaxPixelsASide;
}

}  // namespace

std::optional<double> readNumber(std::string_view text) {
    bool const negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    bool const hexadecimal = isHexadecimal(text);
    text.remove_prefix(hexadecimal ? 2 : 0);
    if (text.starts_with('-'))  // a second sign
        return std::nullopt;
    double value = 0;
    char const* const end = text.data() + text.size();
    auto const [stop, error] = std::from_chars(
        text.data(), end, value, hexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return negative ? -value : value;
}

Size readSize(std::string const& text) {
    Orlo::TextReader reader(text);
    Size size{};
    bool const wellFormed = reader.number(size.width) && reader.literal('x') &&
                            reader.number(size.height) && reader.atEnd();
    if (!wellFormed || !isPictureSide(size.width) || !isPictureSide(size.height))
        throw CallError("the size " + inQuotes(text) +
                        " is not of the form WIDTHxHEIGHT with 1 to 16384 pixels each, such as "
                        "512x64");
    return size;
}

std::optional<std::pair<double, double>> readPair(std::string_view text) {
    std::size_t const comma = text.find(',');
    if (comma == std::string_view::npos)
        return {};
    std::optional<double> const first = readNumber(text.substr(0, comma));
    std::optional<double> const second = readNumber(text.substr(comma + 1));
    if (!first || !second || !std::isfinite(*first) || !std::isfinite(*second))
        return {};
    return std::pair(*first, *second);
}

Interval readRange(std::string const& text) {
    auto const range = readPair(text);
    if (!range || !(range->first < range->second))
        throw CallError("the range " + inQuotes(text) +
                        " is not of the form MIN,MAX with two finite numbers, the lower one "
                        "first, such as 0,1000");
    return {range->first, range->second};
}

}  // namespace workbench
