#include "workbench/common/inQuotes.hpp"

namespace workbench {

namespace {

/// Where a cut at `most` bytes splits no UTF-8 character.
std::size_t cutBefore(std::string_view text, std::size_t most) {
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0U) == 0x80U)
        --most;
    return most;
}

std::string printable(char c) {
    constexpr char digits[] = "0123456789abcdef";
    auto const code = static_cast<unsigned char>(c);
    if (code >= 32 && code != 127)
        return std::string(1, c);
    return std::string("\\x") + digits[code / 16] + digits[code % 16];
}

}  // namespace

std::string inQuotes(std::string_view text, std::size_t most) {
    bool const tooLong = text.size() > most;
    std::string result = "'";
    for (char const c : tooLong ? text.substr(0, cutBefore(text, most)) : text)
        result += printable(c);
    return result + (tooLong ? "...'" : "'");
}

}  // namespace workbench
