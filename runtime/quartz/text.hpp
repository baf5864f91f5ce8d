/// Reading and writing of text forms, without locale.
#pragma once

#include <charconv>
#include <string>
#include <string_view>
#include <vector>

namespace Orlo {

/// A reader that walks over a text. Every step takes what it names from the
/// front, or fails and leaves the position as it was.
class TextReader {
public:
    explicit TextReader(std::string_view text) : rest_(text) {}

    bool literal(char expected) {
        if (rest_.empty() || rest_.front() != expected)
            return false;
        rest_.remove_prefix(1);
        return true;
    }

    template <class Number>
    bool number(Number& value) {
        Number read{};
        auto const [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), read);
        if (error != std::errc())
            return false;
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        value = read;
        return true;
    }

    /// Everything up to, and without, one of the given characters or the end.
    std::string_view until(std::string_view stops) {
        std::size_t const length = std::min(rest_.find_first_of(stops), rest_.size());
        std::string_view const taken = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return taken;
    }

    bool atEnd() const { return rest_.empty(); }

private:
    std::string_view rest_;
};

/// The shortest text that reads back to the same number.
template <class Number>
std::string numberText(Number value) {
    char digits[64];
    auto const [end, error] = std::to_chars(digits, digits + sizeof digits, value);
    return error == std::errc() ? std::string(digits, end) : std::string();
}

/// The words of a text between separators, empty ones left out.
inline std::vector<std::string_view> splitWords(std::string_view text, char separator) {
    std::vector<std::string_view> words;
    while (!text.empty()) {
        std::size_t const length = std::min(text.find(separator), text.size());
        if (length > 0)
            words.push_back(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return words;
}

}  // namespace Orlo
