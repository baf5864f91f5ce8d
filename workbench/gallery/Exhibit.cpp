#include "workbench/gallery/Exhibit.hpp"

#include <set>

#include "workbench/session/entries.hpp"

namespace workbench {

namespace {

bool isPlain(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9');
}

std::string plain(std::string word) {
    for (char& letter : word)
        letter = isPlain(letter) ? letter : '-';
    return word.empty() ? "map" : word.substr(0, 100);  // a name of a file has an end
}

std::string lower(std::string word) {
    for (char& letter : word)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    return word;
}

}  // namespace

std::vector<std::string> wordsFor(std::vector<Exhibit> const& exhibits) {
    std::set<std::string> taken{"top"};  // the page's own anchor
    std::vector<std::string> words;
    for (Exhibit const& exhibit : exhibits) {
        std::string const stem = plain(nameIn(exhibit.key));
        std::string word = stem;
        for (int number = 2; !taken.insert(lower(word)).second; ++number)
            word = stem + "-" + std::to_string(number);
        words.push_back(word);
    }
    return words;
}

}  // namespace workbench
