#include "host/values/FlagList.hpp"

#include "runtime/quartz/text.hpp"

namespace Orlo {

FlagList::FlagList() = default;

FlagList::FlagList(std::string const& text, char separator) : separator_(separator) {
    for (std::string_view word : splitWords(text, separator)) {
        bool const on = word.front() != '-';
        if (!on)
            word.remove_prefix(1);
        if (!word.empty())
            (*this)[std::string(word)] = on;
    }
}

bool FlagList::operator()(std::string const& word, bool& known) const {
    auto const found = find(word);
    if (found == end())
        return false;
    known = true;
    return found->second;
}

}  // namespace Orlo
