#include "host/values/Enum.hpp"

#include <algorithm>
#include <iterator>

namespace Orlo {

VEnumSelection::VEnumSelection() = default;
VEnumSelection::~VEnumSelection() = default;

Enum::Enum() = default;
Enum::Enum(Selection const& words) : Selection(words) {}

Enum& Enum::addCase(std::string const& word) {
    if (get() == nullptr)
        static_cast<Selection&>(*this) = new VEnumSelection;
    get()->push_back(word);
    if (get()->selection < 0)
        get()->selection = 0;
    return *this;
}

Enum& Enum::addCase(char const* word) {
    return addCase(std::string(word));
}

bool Enum::hasSelection() const {
    VEnumSelection const* const words = get();
    return words != nullptr && words->selection >= 0 &&
           static_cast<std::size_t>(words->selection) < words->size();
}

bool Enum::Equal(std::string const& word) const {
    return hasSelection() && selected() == word;
}

bool Enum::operator==(Enum const& other) const {
    return hasSelection() == other.hasSelection() && selected() == other.selected();
}

std::string Enum::selected() const {
    return hasSelection() ? *std::next(get()->begin(), get()->selection) : std::string();
}

Enum Enum::select(std::string const& word) const {
    VEnumSelection const* const words = get();
    if (words == nullptr)
        return {};
    auto const found = std::ranges::find(*words, word);
    if (found == words->end())
        return {};
    Selection const fresh = new VEnumSelection;
    fresh->assign(words->begin(), words->end());
    fresh->selection = static_cast<int>(std::distance(words->begin(), found));
    return fresh;
}

}  // namespace Orlo
