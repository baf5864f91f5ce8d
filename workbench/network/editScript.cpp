#include "workbench/network/editScript.hpp"

#include <algorithm>
#include <array>
#include <optional>

namespace workbench {

namespace {

constexpr std::array<char const*, 4> AttributeOrder{"qTelm::Net::ExpertLevel", "qTelm::Net::status",
                                                    "qTelm::Net::x", "qTelm::Net::y"};

Meaning meaningFor(ValuePath const& path, std::string const& value) {
    if (isAttribute(path.name) && path.context.empty())
        return AttributeLine{path.object, path.name, value};
    return ParameterLine{path.object, path.name, path.context, value};
}

/// The value that a line gives to the place; null if it is about another.
std::string* valueAt(Line& line, ValuePath const& path) {
    if (auto* const parameter = std::get_if<ParameterLine>(&line.meaning))
        if (parameter->object == path.object && parameter->name == path.name &&
            parameter->context == path.context)
            return &parameter->value;
    if (auto* const attribute = std::get_if<AttributeLine>(&line.meaning))
        if (attribute->object == path.object && attribute->name == path.name &&
            path.context.empty())
            return &attribute->value;
    return nullptr;
}

template <class Words>
std::size_t rank(Words const& words, std::string const& word) {
    return static_cast<std::size_t>(std::ranges::find(words, word) - std::ranges::begin(words));
}

/// The line that the living object of that name comes from, or none. A script may
/// delete an object and make another of the name.
std::optional<std::size_t> beginOf(Script const& script, std::string const& object) {
    std::optional<std::size_t> begin;
    for (std::size_t i = 0; i < script.lines.size(); ++i) {
        Meaning const& meaning = script.lines[i].meaning;
        if (!begin && begins(meaning, object))
            begin = i;
        else if (std::holds_alternative<DeletionLine>(meaning) && objectOf(meaning) == object)
            begin.reset();
    }
    return begin;
}

/// Tells which lines of an object a new value stands behind.
class Order {
public:
    Order(ValuePath const& path, std::vector<std::string> const& parameters)
        : path_(path), parameters_(parameters) {}

    bool precedes(ParameterLine const& line) const {
        return line.name == path_.name ? !line.context.empty() : isEarlier(line.name);
    }
    bool precedes(PropertyLine const& line) const { return isEarlier(line.parameter); }
    bool precedes(NoteLine const& line) const { return isEarlier(line.parameter); }
    bool precedes(AttributeLine const& line) const {
        return isAttribute(path_.name) &&
               rank(AttributeOrder, line.name) < rank(AttributeOrder, path_.name);
    }
    bool precedes(auto const&) const { return false; }

private:
    bool isEarlier(std::string const& name) const {
        return isAttribute(path_.name) || rank(parameters_, name) < rank(parameters_, path_.name);
    }

    ValuePath const& path_;
    std::vector<std::string> const& parameters_;
};

/// Where the new line belongs, behind the object's beginning at `start`.
/// Parameters that stand behind the attributes do not count.
std::size_t indexFor(Script const& script, std::size_t start, std::string const& object,
                     Order const& order) {
    std::size_t behind = start + 1;
    bool attributesSeen = false;
    for (std::size_t i = start + 1; i < script.lines.size(); ++i) {
        Meaning const& meaning = script.lines[i].meaning;
        if (objectOf(meaning) != object)
            continue;
        bool const isAttributeLine = std::holds_alternative<AttributeLine>(meaning);
        attributesSeen = attributesSeen || isAttributeLine;
        bool const counts = isAttributeLine || !attributesSeen;
        if (counts && std::visit([&](auto const& line) { return order.precedes(line); }, meaning))
            behind = i + 1;
    }
    return behind;
}

void insertLine(Script& script, std::size_t at, Meaning const& meaning) {
    std::string const end = script.lines.front().end.empty() ? "\n" : script.lines.front().end;
    Line& before = script.lines[at - 1];
    if (before.end.empty())
        before.end = end;
    script.lines.insert(script.lines.begin() + static_cast<std::ptrdiff_t>(at),
                        Line{0, *textOf(meaning), end, meaning});
}

}  // namespace

void writeValue(Script& script, ValuePath const& path, std::string const& value,
                std::vector<std::string> const& parameterOrder) {
    auto const start = beginOf(script, path.object);
    if (!start)
        return;
    for (std::size_t i = script.lines.size() - 1; i > *start; --i) {
        Line& line = script.lines[i];
        if (std::string* const present = valueAt(line, path)) {
            *present = value;
            line.text = *textOf(line.meaning);
            return;
        }
    }
    insertLine(script, indexFor(script, *start, path.object, Order(path, parameterOrder)),
               meaningFor(path, value));
}

}  // namespace workbench
