#include "workbench/network/editScript.hpp"

#include <algorithm>
#include <array>
#include <optional>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"

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

void insertLine(Script& script, std::size_t at, std::string const& text, Meaning const& meaning) {
    std::string const end = script.lines.front().end.empty() ? "\n" : script.lines.front().end;
    Line& before = script.lines[at - 1];
    if (before.end.empty())
        before.end = end;
    script.endsOpen = false;
    script.lines.insert(script.lines.begin() + static_cast<std::ptrdiff_t>(at),
                        Line{0, text, end, meaning});
}

void insertLine(Script& script, std::size_t at, Meaning const& meaning) {
    insertLine(script, at, *textOf(meaning), meaning);
}

/// Throws `CallError` unless a line of that meaning reads back as what it is.
template <class Form>
void checkForm(Form const& form, std::string const& what) {
    if (meaningOf(*textOf(form)) != Meaning(form))
        throw CallError(inQuotes(what) +
                        " cannot stand in a saved network; names hold no blanks and none of "
                        "\" ' = < > ( ) { } [ ] # . , ;");
}

std::string deletionComment(std::string const& name) {
    return "# DELETE IF EXISTS " + name;
}

template <class Form>
bool isForm(Line const& line) {
    return std::holds_alternative<Form>(line.meaning);
}

/// The index of the first line that is one, or the number of lines.
template <class Predicate>
std::size_t firstWhere(Script const& script, Predicate const& is) {
    return static_cast<std::size_t>(std::ranges::find_if(script.lines, is) - script.lines.begin());
}

/// The index behind the last line that is one, or `none`.
template <class Predicate>
std::size_t behindLast(Script const& script, std::size_t none, Predicate const& is) {
    for (std::size_t i = script.lines.size(); i > 0; --i)
        if (is(script.lines[i - 1]))
            return i;
    return none;
}

/// Where the objects end: at the block of comments that heads the next section, or
/// at its first line.
std::size_t endOfObjects(Script const& script) {
    std::size_t const end = firstWhere(script, [](Line const& line) {
        return isSectionHead(line) || isForm<ConnectionLine>(line) || isForm<SetupLine>(line);
    });
    bool const isInBlock =
        end > 0 && end < script.lines.size() && script.lines[end - 1].text == "#";
    return isInBlock ? end - 1 : end;
}

void insertSetup(Script& script, std::string const& name) {
    bool const hasSetups = std::ranges::any_of(script.lines, isForm<SetupLine>);
    bool const hasSections = std::ranges::any_of(script.lines, isSectionHead);
    if (!hasSetups && !hasSections)
        return;
    std::size_t const place = firstWhere(script, [&](Line const& line) {
        return isForm<SetupLine>(line) && objectOf(line.meaning) > name;
    });
    bool const isLast = place == script.lines.size();
    insertLine(script, isLast ? behindLast(script, script.lines.size(), isForm<SetupLine>) : place,
               SetupLine{name});
}

/// Where connections begin if there is none yet: behind the head of their section,
/// else in front of the set-up.
std::size_t startOfConnections(Script const& script) {
    std::size_t const head =
        firstWhere(script, [](Line const& line) { return line.text == "# Establish Connections"; });
    if (head + 1 < script.lines.size() && isSectionHead(script.lines[head]))
        return script.lines[head + 1].text == "#" ? head + 2 : head + 1;
    std::size_t const setup = firstWhere(script, [](Line const& line) {
        return isForm<SetupLine>(line) || line.text == "# Setup Objects";
    });
    return setup > 0 && setup < script.lines.size() && script.lines[setup - 1].text == "#"
               ? setup - 1
               : setup;
}

std::size_t indexFor(Script const& script, ConnectionLine const& connection,
                     std::vector<std::string> const& inputOrder) {
    auto const precedes = [&](Line const& line) {
        auto const* const other = std::get_if<ConnectionLine>(&line.meaning);
        return other != nullptr &&
               (other->object < connection.object ||
                (other->object == connection.object &&
                 rank(inputOrder, other->input) <= rank(inputOrder, connection.input)));
    };
    std::size_t const first = firstWhere(script, isForm<ConnectionLine>);
    return behindLast(script, first < script.lines.size() ? first : startOfConnections(script),
                      precedes);
}

}  // namespace

bool isSectionHead(Line const& line) {
    return isForm<CommentLine>(line) &&
           (line.text == "# Establish Connections" || line.text == "# Setup Objects");
}

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

void addObject(Script& script, std::string const& key, std::string const& name) {
    checkForm(CreationLine{key, name}, key + " " + name);
    insertSetup(script, name);
    std::size_t at = endOfObjects(script);
    if (!isForm<BlankLine>(script.lines[at - 1]))
        insertLine(script, at++, "", BlankLine{});
    insertLine(script, at++, deletionComment(name), CommentLine{});
    insertLine(script, at++, DeletionLine{name});
    insertLine(script, at++, CreationLine{key, name});
    if (at < script.lines.size())
        insertLine(script, at, "", BlankLine{});
}

void removeObject(Script& script, std::string const& name) {
    auto const concerns = [&](Line const& line) {
        auto const* const connection = std::get_if<ConnectionLine>(&line.meaning);
        return objectOf(line.meaning) == name || line.text == deletionComment(name) ||
               (connection != nullptr && connection->provider == name);
    };
    std::size_t const at = firstWhere(script, concerns);
    std::erase_if(script.lines, concerns);
    bool const isGap = at > 0 && at < script.lines.size() &&
                       isForm<BlankLine>(script.lines[at - 1]) &&
                       isForm<BlankLine>(script.lines[at]);
    if (isGap)
        script.lines.erase(script.lines.begin() + static_cast<std::ptrdiff_t>(at));
}

void replaceKey(Script& script, std::string const& name, std::string const& key) {
    checkForm(CreationLine{key, name}, key);
    auto const begin = beginOf(script, name);
    if (!begin || !isForm<CreationLine>(script.lines[*begin]))
        throw CallError(inQuotes(name) +
                        " is not made by this network, so that nothing else "
                        "can take its place");
    Line& line = script.lines[*begin];
    line.meaning = CreationLine{key, name};
    line.text = *textOf(line.meaning);
}

void removeValues(Script& script, std::string const& object, std::string const& parameter) {
    std::erase_if(script.lines, [&](Line const& line) {
        auto const* const value = std::get_if<ParameterLine>(&line.meaning);
        return value != nullptr && value->object == object && value->name == parameter;
    });
}

void removeProperties(Script& script, std::string const& object, std::string const& parameter) {
    std::erase_if(script.lines, [&](Line const& line) {
        auto const* const property = std::get_if<PropertyLine>(&line.meaning);
        return property != nullptr && property->object == object &&
               property->parameter == parameter;
    });
}

void writeConnection(Script& script, ConnectionLine const& connection,
                     std::vector<std::string> const& inputOrder) {
    checkForm(connection, *textOf(connection));
    auto const isSame = [&](Line const& line) {
        auto const* const other = std::get_if<ConnectionLine>(&line.meaning);
        return other != nullptr && other->object == connection.object &&
               other->input == connection.input;
    };
    std::size_t at = firstWhere(script, isSame);
    std::erase_if(script.lines, isSame);
    if (at >= script.lines.size())
        at = indexFor(script, connection, inputOrder);
    for (std::string const& name : {connection.object, connection.provider})
        if (auto const begin = beginOf(script, name))
            at = std::max(at, *begin + 1);
    insertLine(script, at, connection);
}

bool removeConnection(Script& script, std::string const& object, std::string const& input) {
    return std::erase_if(script.lines, [&](Line const& line) {
               auto const* const connection = std::get_if<ConnectionLine>(&line.meaning);
               return connection != nullptr && connection->object == object &&
                      connection->input == input;
           }) > 0;
}

}  // namespace workbench
