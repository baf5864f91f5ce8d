/// The text forms of the value types.
#include "host/values/VValueTrait.hpp"

#include <algorithm>

#include "runtime/quartz/text.hpp"

namespace Orlo {

namespace {

template <class Number>
bool readWhole(Number& value, std::string const& text) {
    TextReader reader(text);
    Number read{};
    if (!reader.number(read) || !reader.atEnd())
        return false;
    value = read;
    return true;
}

/// The words in braces at the reader's position; false if they are malformed.
bool readCases(TextReader& reader, Enum& words) {
    while (reader.literal('{')) {
        words.addCase(std::string(reader.until("{}")));
        if (!reader.literal('}'))
            return false;
    }
    return reader.atEnd();
}

bool sameWords(Enum const& a, Enum const& b) {
    return std::equal(a->begin(), a->end(), b->begin(), b->end());
}

}  // namespace

bool VValueTrait<double>::setValueFromText(double& value, std::string const& text) {
    return readWhole(value, text);
}
std::string VValueTrait<double>::Text(double const& value) {
    return numberText(value);
}

bool VValueTrait<int>::setValueFromText(int& value, std::string const& text) {
    return readWhole(value, text);
}
std::string VValueTrait<int>::Text(int const& value) {
    return numberText(value);
}

bool VValueTrait<Tessar::rgba_float_t>::setValueFromText(Tessar::rgba_float_t& value,
                                                         std::string const& text) {
    TextReader reader(text);
    Tessar::rgba_float_t read;
    for (std::size_t i = 0; i < read.size(); ++i)
        if (!reader.literal(i == 0 ? '(' : ',') || !reader.number(read[i]))
            return false;
    if (!reader.literal(')') || !reader.atEnd())
        return false;
    value = read;
    return true;
}
std::string VValueTrait<Tessar::rgba_float_t>::Text(Tessar::rgba_float_t const& value) {
    return "(" + numberText(value[0]) + "," + numberText(value[1]) + "," + numberText(value[2]) +
           "," + numberText(value[3]) + ")";
}

bool VValueTrait<Enum>::setValueFromText(Enum& value, std::string const& text) {
    TextReader reader(text);
    std::string const word(reader.until("{}"));
    Enum words;
    if (!readCases(reader, words))
        return false;
    bool const bare = !words;
    if (bare && !value)
        return word.empty();
    if (!bare && value && !sameWords(value, words))
        return false;
    Enum const chosen = (bare ? value : words).select(word);
    if (chosen) {
        value = chosen;
        return true;
    }
    if (!word.empty() || (bare && !value->empty()))
        return false;
    if (!bare) {  // no word in front of the braces, and none of them empty
        words->selection = -1;
        value = words;
    }
    return true;
}
std::string VValueTrait<Enum>::Text(Enum const& value) {
    std::string text = value.selected();
    if (value)
        for (std::string const& word : *value)
            text += "{" + word + "}";
    return text;
}

bool VValueTrait<FlagList>::setValueFromText(FlagList& value, std::string const& text) {
    for (std::string_view word : splitWords(text, value.separator())) {
        if (word.front() == '-')
            word.remove_prefix(1);
        if (word.empty() || word.front() == '-')
            return false;
        if (!value.empty() && !value.contains(std::string(word)))
            return false;
    }
    value = FlagList(text, value.separator());
    return true;
}
std::string VValueTrait<FlagList>::Text(FlagList const& value) {
    std::string text;
    for (auto const& [word, on] : value)
        text += value.separator() + (on ? word : "-" + word);
    return text;
}

bool VValueTrait<Range>::setValueFromText(Range& value, std::string const& text) {
    TextReader reader(text);
    Range read;
    if (!reader.number(read.minimum) || !reader.literal(',') || !reader.number(read.maximum) ||
        !reader.atEnd())
        return false;
    value = read;
    return true;
}
std::string VValueTrait<Range>::Text(Range const& value) {
    return numberText(value.minimum) + "," + numberText(value.maximum);
}

bool VValueTrait<VTime>::setValueFromText(VTime& value, std::string const& text) {
    TextReader reader(text);
    VTime read = value;
    if (!reader.number(read.value) || !reader.literal('[') || !reader.number(read.minimum) ||
        !reader.literal(',') || !reader.number(read.maximum) || !reader.literal(']') ||
        !reader.literal('@') || !reader.number(read.step) || !reader.atEnd())
        return false;
    value = read;
    return true;
}
std::string VValueTrait<VTime>::Text(VTime const& value) {
    return numberText(value.value) + "[" + numberText(value.minimum) + "," +
           numberText(value.maximum) + "]@" + numberText(value.step);
}

bool VValueTrait<std::string>::setValueFromText(std::string& value, std::string const& text) {
    value = text;
    return true;
}
std::string VValueTrait<std::string>::Text(std::string const& value) {
    return value;
}

}  // namespace Orlo
