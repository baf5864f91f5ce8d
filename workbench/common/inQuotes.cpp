#include "workbench/common/inQuotes.hpp"

namespace workbench {

namespace {

/// Where a cut at `maxBytes` bytes splits no UTF-8 character.
std::size_t cutBefore(std::string_view text, std::size_t maxBytes) {
    while (maxBytes > 0 && (static_cast<unsigned char>(text[maxBytes]) & 0xC0U) == 0x80U)
        --maxBytes;
    return maxBytes;
}

void appendPrintable(std::string& result, char c) {
    constexpr char digits[] = "0123456789abcdef";
    auto const code = static_cast<unsigned char>(c);
    if (code >= 32 && code != 127)
        result += c;
    else
        result += {'\\', 'x', digits[code / 16], digits[code % 16]};
}

}  // namespace

std::string printable(std::string_view text) {
    std::string result;
    for (char const c : text)
        appendPrintable(result, c);
    return result;
}

std::string inQuotes(std::string_view text, std::size_t maxBytes) {
    bool const tooLong = text.size() > maxBytes;
    std::string_view const shown = tooLong ? text.substr(0, cutBefore(text, maxBytes)) : text;
    return "'" + printable(shown) + (tooLong ? "...'" : "'");
}

}  // namespace workbench
