#include "workbench/validate/texts.hpp"

#include <array>
#include <charconv>
#include <optional>

#include "host/values/Enum.hpp"
#include "host/values/FlagList.hpp"
#include "host/values/Range.hpp"
#include "host/values/VTime.hpp"
#include "host/values/VValueTrait.hpp"

namespace workbench::validate {

using namespace Orlo;

namespace {

template <class Number>
std::string textOf(Number number) {
    std::array<char, 64> text{};
    auto const end = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), end.ptr};
}

std::optional<double> numberIn(std::string const& text) {
    double number = 0;
    auto const end = std::from_chars(text.data(), text.data() + text.size(), number);
    if (end.ec != std::errc() || end.ptr != text.data() + text.size())
        return {};
    return number;
}

bool takes(VParameter const& parameter, std::string const& text) {
    ValuePtr const value = parameter.copyOfDefault();
    return value && value->setFromText(text);
}

/// The words that stand in braces behind the choice of an Enum.
std::vector<std::string> choicesIn(std::string const& text) {
    std::vector<std::string> words;
    for (std::size_t open = text.find('{'); open != std::string::npos;
         open = text.find('{', open + 1)) {
        std::size_t const close = text.find('}', open);
        if (close == std::string::npos)
            break;
        words.push_back(text.substr(open + 1, close - open - 1));
    }
    return words;
}

std::vector<std::string> flagsIn(std::string const& text) {
    std::vector<std::string> words;
    std::string word;
    for (char const c : text + ' ') {
        if (c != ' ') {
            word += c;
            continue;
        }
        if (!word.empty())
            words.push_back(word.substr(word.front() == '-' ? 1 : 0));
        word.clear();
    }
    return words;
}

/// A number from 0 to 1 in steps of 1/65536.
double part(Trial& trial) {
    constexpr unsigned Steps = 65536;
    return trial.below(Steps + 1) / double{Steps};
}

double randomNumber(Trial& trial, std::optional<double> min, std::optional<double> max) {
    if (min && max)
        return *min + (*max - *min) * part(trial);
    constexpr double Scales[] = {1, 1, 1, 2, 10, 1000, 1e6, 1e-6};
    double const scale = Scales[trial.below(std::size(Scales))];
    return trial.below(4) == 0 ? -scale * part(trial) : scale * part(trial);
}

int randomCount(Trial& trial, std::optional<double> min, std::optional<double> max) {
    constexpr int Most = 32;
    int const first = min ? static_cast<int>(*min) : 0;
    int const last = max ? static_cast<int>(std::min(*max, first + double{Most})) : first + Most;
    return first + static_cast<int>(trial.below(static_cast<unsigned>(last - first + 1)));
}

std::string randomColor(Trial& trial) {
    std::string text;
    for (int i = 0; i < 4; ++i)
        text += (i == 0 ? "(" : ",") + textOf(static_cast<float>(part(trial)));
    return text + ")";
}

std::string randomFlags(std::string const& present, Trial& trial) {
    std::string text;
    for (std::string const& word : flagsIn(present))
        text += (text.empty() ? "" : " ") + std::string(trial.below(2) == 0 ? "-" : "") + word;
    return text;
}

/// Texts of which every type takes one or the other, for a value that is written as the
/// given one.
std::vector<std::string> textsOfAnyType(std::string const& present) {
    std::vector<std::string> texts{"0.25", "7", "(0.25,0.5,0.75,0.5)", "0.25,0.75", "0.5[0,1]@0.1"};
    for (std::string const& word : choicesIn(present))
        texts.push_back(word);
    for (std::string const& word : flagsIn(present))
        texts.insert(texts.end(), {word, "-" + word});
    texts.insert(texts.end(), {"true", "false", "1", "another text"});
    return texts;
}

/// For types that only the plug-in knows.
std::string randomTextOfAnyType(std::string const& present, Trial& trial) {
    std::vector<std::string> const texts = textsOfAnyType(present);
    return texts[trial.below(static_cast<unsigned>(texts.size()))];
}

}  // namespace

bool isUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        auto const first = static_cast<unsigned char>(text[i]);
        std::size_t const length = first < 0x80                    ? 1
                                   : first >= 0xc2 && first < 0xe0 ? 2
                                   : first >= 0xe0 && first < 0xf0 ? 3
                                   : first >= 0xf0 && first < 0xf5 ? 4
                                                                   : 0;
        if (length == 0 || i + length > text.size())
            return false;
        for (std::size_t k = 1; k < length; ++k)
            if ((static_cast<unsigned char>(text[i + k]) & 0xc0U) != 0x80U)
                return false;
        i += length;
    }
    return true;
}

std::string advice(VParameter const& parameter, std::string const& name) {
    ValueMap const* const properties = parameter.properties();
    ValuePtr const value = properties != nullptr ? properties->getValue(name) : nullptr;
    return value ? value->text() : std::string();
}

std::string randomText(VParameter const& parameter, Trial& trial) {
    ValuePtr const value = parameter.copyOfDefault();
    if (!value)
        return {};
    std::string const present = value->text();
    std::type_info const& type = value->type();
    auto const min = numberIn(advice(parameter, "min"));
    auto const max = numberIn(advice(parameter, "max"));
    auto const number = [&] { return textOf(randomNumber(trial, min, max)); };
    std::string text;
    if (type == typeid(double))
        text = number();
    else if (type == typeid(int))
        text = textOf(randomCount(trial, min, max));
    else if (type == typeid(bool))
        text = trial.below(2) == 0 ? "false" : "true";
    else if (type == typeid(Tessar::rgba_float_t))
        text = randomColor(trial);
    else if (type == typeid(Range))
        text = number() + "," + number();
    else if (type == typeid(VTime))
        text = number() + "[0,1]@0.1";
    else if (type == typeid(FlagList))
        text = randomFlags(present, trial);
    else if (auto const words = choicesIn(present); !words.empty())
        text = words[trial.below(static_cast<unsigned>(words.size()))];
    else
        text = randomTextOfAnyType(present, trial);
    return takes(parameter, text) ? text : present;
}

std::vector<std::string> textsAtTheEnds(VParameter const& parameter) {
    ValuePtr const value = parameter.copyOfDefault();
    if (!value)
        return {};
    std::type_info const& type = value->type();
    std::string const min = advice(parameter, "min"), max = advice(parameter, "max");
    std::vector<std::string> texts{min, max};
    auto const add = [&](std::initializer_list<char const*> more) {
        texts.insert(texts.end(), more.begin(), more.end());
    };
    if (type == typeid(double))
        add({"0", "-0", "1", "-1", "5e-324", "1e-300", "1e300", "-1e300", "inf", "-inf", "nan"});
    if (type == typeid(int))
        add({"0", "1", "-1", "-2147483648"});
    if (type == typeid(int) && max.empty())
        add({"64"});
    if (type == typeid(bool))
        add({"true", "false"});
    if (type == typeid(Tessar::rgba_float_t))
        add({"(0,0,0,0)", "(1,1,1,1)", "(-1,2,1e30,-1e30)", "(nan,inf,-inf,0)"});
    if (type == typeid(Range))
        add({"0,0", "1,0", "0,1", "-1e300,1e300", "nan,nan", "-inf,inf"});
    if (type == typeid(VTime))
        add({"0[0,0]@0", "1e300[0,1]@0.1", "-1[1,0]@-1", "nan[nan,nan]@nan"});
    if (type == typeid(FlagList)) {
        std::string on, off;
        for (std::string const& word : flagsIn(value->text())) {
            on += (on.empty() ? "" : " ") + word;
            off += (off.empty() ? "-" : " -") + word;
        }
        texts.insert(texts.end(), {on, off, ""});
    }
    for (std::string const& word : choicesIn(value->text()))
        texts.push_back(word);
    std::erase_if(texts, [&](std::string const& text) { return !takes(parameter, text); });
    return texts;
}

std::string otherText(VParameter const& parameter) {
    ValuePtr const standard = parameter.copyOfDefault(), other = parameter.copyOfDefault();
    if (!standard)
        return {};
    for (std::string const& text : textsOfAnyType(standard->text()))
        if (other->setFromText(text) && other->differs(standard))
            return text;
    return {};
}

std::vector<std::string> hostileTexts(std::string const& right, Trial& trial) {
    constexpr std::size_t Megabyte = 1 << 20;
    std::vector<std::string> texts{"",
                                   " ",
                                   std::string(1, '\0'),
                                   "\n",
                                   "\xff\xfe",
                                   "\xc3",
                                   right + '\0' + right,
                                   right + "x",
                                   "x" + right,
                                   right + right,
                                   right.substr(0, right.size() / 2),
                                   "{",
                                   "}",
                                   "{}{",
                                   "(,,,)",
                                   "1e999999999",
                                   "0x10",
                                   "%n%s%n%s",
                                   std::string(Megabyte, '0'),
                                   std::string(Megabyte, 'x'),
                                   std::string(Megabyte, '{'),
                                   std::string(Megabyte, ' ') + right};
    for (int i = 0; i < 3; ++i) {
        std::string bytes(Megabyte, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(trial.below(256));
        texts.push_back(std::move(bytes));
    }
    return texts;
}

}  // namespace workbench::validate
