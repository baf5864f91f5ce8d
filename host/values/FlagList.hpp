/// Named booleans.
#pragma once

#include <map>
#include <string>

#include "host/pointers/import.hpp"

namespace Orlo {

/// Flags by their words.
///
/// The text form lists the words, each behind the list's separator, a blank if
/// nothing else is said; a leading minus turns a flag off: " -inverse".
class QUARTZ_API FlagList : public std::map<std::string, bool> {
public:
    FlagList();
    /// From a text with words divided by `separator`.
    FlagList(std::string const& text, char separator);

    /// The value of a flag. `known` becomes true if the list has the word and is
    /// left alone otherwise; an unknown flag is off.
    bool operator()(std::string const& word, bool& known) const;

    /// What divides the words in the text form.
    char separator() const noexcept { return separator_; }

private:
    char separator_ = ' ';
};

}  // namespace Orlo
