#include "workbench/common/nearest.hpp"

#include <algorithm>
#include <optional>

namespace workbench {

namespace {

std::string lowerCase(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

/// Longer ones are no names that somebody mistyped; to compare them would take a
/// time that grows with the square of their length.
constexpr std::size_t LongestWord = 256;

/// How many letters must be put in, taken out, replaced or swapped with their
/// neighbour to turn one word into the other.
std::size_t editDistance(std::string const& a, std::string const& b) {
    std::vector<std::size_t> beforeLast(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            std::size_t const replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0U : 1U);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, replaced});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row[b.size()];
}

/// How unlike two words in lower case are; none if they are not alike at all.
std::optional<std::size_t> unlikeness(std::string const& a, std::string const& b) {
    auto const [shorter, longer] = std::minmax({a.size(), b.size()});
    std::size_t const limit = std::max(std::min<std::size_t>(2, b.size() / 2), b.size() / 4);
    if (longer - shorter <= limit)
        if (std::size_t const distance = editDistance(a, b); distance <= limit && distance < longer)
            return distance;
    if (shorter >= 3 && (a.find(b) != std::string::npos || b.find(a) != std::string::npos))
        return limit + (longer - shorter);
    return std::nullopt;
}

}  // namespace

std::vector<std::string> nearest(std::string const& word, std::vector<std::string> const& words,
                                 std::size_t maxCount) {
    struct Match {
        std::size_t unlike;
        std::string const* word;
    };
    if (word.size() > LongestWord)
        return {};
    std::string const wanted = lowerCase(word);
    std::vector<Match> matches;
    for (std::string const& each : words)
        if (auto const unlike =
                each.size() <= LongestWord ? unlikeness(wanted, lowerCase(each)) : std::nullopt)
            matches.push_back({*unlike, &each});
    std::ranges::stable_sort(matches, {}, &Match::unlike);
    std::vector<std::string> result;
    for (Match const& match : matches)
        if (result.size() < maxCount && std::ranges::find(result, *match.word) == result.end())
            result.push_back(*match.word);
    return result;
}

std::string suggestion(std::string const& word, std::vector<std::string> const& words,
                       std::string const& defaultText) {
    std::vector<std::string> const near = nearest(word, words);
    if (near.empty())
        return defaultText;
    std::string text = "; did you mean ";
    for (std::size_t i = 0; i < near.size(); ++i) {
        if (i > 0)
            text += i + 1 == near.size() ? " or " : ", ";
        text += "'" + near[i] + "'";
    }
    return text + "?";
}

}  // namespace workbench
