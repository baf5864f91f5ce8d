/// An entry for each of many faults of parameters, most of them in value types of their
/// own.
#include <algorithm>
#include <cctype>
#include <cstring>
#include <memory>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

/// Some text, which the rule writes and reads.
template <class Rule>
struct Word {
    std::string text = "one";
    bool operator==(Word const&) const = default;
};

bool isWord(std::string const& text) {
    return !text.empty() &&
           std::ranges::all_of(text, [](unsigned char c) { return std::isalpha(c) != 0; });
}

/// Refuses a text when it has taken it over.
struct Hasty {
    static bool read(std::string& value, std::string const& text) {
        value = text;
        return isWord(text);
    }
    static std::string write(std::string const& value) { return value; }
};

/// Reads any word, and writes the beginning of it.
struct Short {
    static bool read(std::string& value, std::string const& text) {
        if (isWord(text))
            value = text;
        return isWord(text);
    }
    static std::string write(std::string const& value) { return value.substr(0, 3); }
};

/// Reads words, and writes them in brackets.
struct Bracketed {
    static bool read(std::string& value, std::string const& text) {
        if (isWord(text))
            value = text;
        return isWord(text);
    }
    static std::string write(std::string const& value) { return "[" + value + "]"; }
};

/// A number that copies have in common.
struct Shared {
    Shared() = default;
    Shared(Shared const&) = default;
    Shared& operator=(Shared const& other) {
        *number = *other.number;
        return *this;
    }
    ~Shared() = default;
    bool operator==(Shared const& other) const { return *number == *other.number; }

    std::shared_ptr<double> number = std::make_shared<double>(0.0);
};

/// A text that is lost when there is no memory for all that an assignment needs.
class Spilling {
public:
    Spilling() = default;
    Spilling(Spilling const& other) : text_(copyOf(other.text_)) {}
    Spilling& operator=(Spilling const& other) {
        char* const fresh = copyOf(other.text_);
        std::string const former(text_);  // which may throw, too long to be stored in place
        delete[] text_;
        text_ = fresh;
        return *this;
    }
    ~Spilling() { delete[] text_; }
    bool operator==(Spilling const& other) const { return std::strcmp(text_, other.text_) == 0; }

    void set(std::string const& text) {
        char* const fresh = copyOf(text.c_str());
        delete[] text_;
        text_ = fresh;
    }
    char const* text() const { return text_; }

private:
    static char* copyOf(char const* text) {
        std::size_t const size = std::strlen(text) + 1;
        char* const fresh = new char[size];
        std::copy_n(text, size, fresh);
        return fresh;
    }

    char* text_ = copyOf("aTextOfSoManyLettersThatItIsStoredNowhereInPlace");
};

}  // namespace

namespace Orlo {

template <class Rule>
struct VValueTrait<Word<Rule>> {
    static bool setValueFromText(Word<Rule>& value, std::string const& text) {
        return Rule::read(value.text, text);
    }
    static std::string Text(Word<Rule> const& value) { return Rule::write(value.text); }
};

template <>
struct VValueTrait<Shared> {
    static bool setValueFromText(Shared& value, std::string const& text) {
        double number = 0;
        if (!VValueTrait<double>::setValueFromText(number, text))
            return false;
        value.number = std::make_shared<double>(number);
        return true;
    }
    static std::string Text(Shared const& value) {
        return VValueTrait<double>::Text(*value.number);
    }
};

template <>
struct VValueTrait<Spilling> {
    static bool setValueFromText(Spilling& value, std::string const& text) {
        if (!isWord(text))
            return false;
        value.set(text);
        return true;
    }
    static std::string Text(Spilling const& value) { return value.text(); }
};

}  // namespace Orlo

namespace {

bool const types =
    registerValueTypes<Word<Hasty>, Word<Short>, Word<Bracketed>, Shared, Spilling>();

/// With one more parameter.
template <class T>
class With : public Object<Grey> {
public:
    using Object::Object;
    TypedSlot<T> more{this, "more", T(), 0};
};
Entry<With<Word<Hasty>>> const hasty("Colormaps", "Hasty");
Entry<With<Word<Short>>> const shortened("Colormaps", "Short");
Entry<With<Shared>> const shared("Colormaps", "Shared");
Entry<With<Spilling>> const spilling("Colormaps", "Spilling");
Entry<With<Word<Bracketed>>> const bracketed("Colormaps", "Bracketed");

/// Its second parameter takes the place of the first.
class Doubled : public Object<Grey> {
public:
    using Object::Object;
    TypedSlot<double> again{this, "level", 0.0, 0};
};
Entry<Doubled> const doubled("Colormaps", "Doubled");

}  // namespace
