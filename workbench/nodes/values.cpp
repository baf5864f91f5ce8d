#include "workbench/nodes/values.hpp"

#include "host/pointers/Typename.hpp"
#include "host/values/TypedSlot.hpp"
#include "runtime/quartz/text.hpp"

namespace workbench {

void registerNodeTypes() {
    static bool const once =
        Orlo::registerValueTypes<double, int, bool, Tessar::rgba_float_t, Orlo::Enum,
                                 Orlo::FlagList, Orlo::Range, Orlo::VTime, Point, Box, Pair,
                                 Identifier, Nothing, std::string>();
    static_cast<void>(once);
}

namespace {

template <class T>
bool reads(std::string const& text) {
    T value{};
    return Orlo::VValueTrait<T>::setValueFromText(value, text);
}

/// A choice has its words in braces and selects one of them; what else reads as
/// one is rather a text.
bool isChoice(std::string const& text) {
    Orlo::Enum value;
    return text.ends_with('}') && Orlo::VValueTrait<Orlo::Enum>::setValueFromText(value, text) &&
           value->selection >= 0;
}

/// A list of flags has each of them behind a blank.
bool isFlagList(std::string const& text) {
    return text.starts_with(' ') && reads<Orlo::FlagList>(text) &&
           !Orlo::splitWords(text, ' ').empty();
}

template <class T>
std::string nameOf() {
    return Nucleo::Typename(typeid(T));
}

/// The name of the first type that reads the text, or nothing.
template <class... Ts>
std::string firstReader(std::string const& text) {
    std::string name;
    static_cast<void>(((reads<Ts>(text) && (name = nameOf<Ts>(), true)) || ...));
    return name;
}

}  // namespace

std::string inferType(std::string const& text) {
    registerNodeTypes();
    std::string const name = firstReader<Nothing, bool, double, Orlo::VTime, Orlo::Range,
                                         Tessar::rgba_float_t, Point, Box, Pair, Identifier>(text);
    if (!name.empty())
        return name;
    if (isChoice(text))
        return nameOf<Orlo::Enum>();
    return isFlagList(text) ? nameOf<Orlo::FlagList>() : nameOf<std::string>();
}

}  // namespace workbench

namespace Orlo {

using workbench::Box;
using workbench::Identifier;
using workbench::Nothing;
using workbench::Pair;
using workbench::Point;

namespace {

bool readPoint(TextReader& reader, Point& point) {
    return reader.literal('{') && reader.number(point.x) && reader.literal(',') &&
           reader.number(point.y) && reader.literal(',') && reader.number(point.z) &&
           reader.literal('}');
}

/// Takes over what was read if it was the whole text.
template <class T>
bool finish(TextReader const& reader, T const& read, T& value) {
    if (!reader.atEnd())
        return false;
    value = read;
    return true;
}

}  // namespace

bool VValueTrait<bool>::setValueFromText(bool& value, std::string const& text) {
    if (text != "true" && text != "false")
        return false;
    value = text == "true";
    return true;
}
std::string VValueTrait<bool>::Text(bool const& value) {
    return value ? "true" : "false";
}

bool VValueTrait<Point>::setValueFromText(Point& value, std::string const& text) {
    TextReader reader(text);
    Point read;
    return readPoint(reader, read) && finish(reader, read, value);
}
std::string VValueTrait<Point>::Text(Point const& value) {
    return "{" + numberText(value.x) + "," + numberText(value.y) + "," + numberText(value.z) + "}";
}

bool VValueTrait<Box>::setValueFromText(Box& value, std::string const& text) {
    TextReader reader(text);
    Box read;
    return reader.literal('[') && readPoint(reader, read.min) && reader.literal(';') &&
           readPoint(reader, read.max) && reader.literal(']') && finish(reader, read, value);
}
std::string VValueTrait<Box>::Text(Box const& value) {
    return "[" + VValueTrait<Point>::Text(value.min) + ";" + VValueTrait<Point>::Text(value.max) +
           "]";
}

bool VValueTrait<Pair>::setValueFromText(Pair& value, std::string const& text) {
    TextReader reader(text);
    Pair read;
    return reader.number(read.first) && reader.literal('x') && reader.number(read.second) &&
           finish(reader, read, value);
}
std::string VValueTrait<Pair>::Text(Pair const& value) {
    return numberText(value.first) + "x" + numberText(value.second);
}

bool VValueTrait<Identifier>::setValueFromText(Identifier& value, std::string const& text) {
    constexpr char const* NotInNames = "@ \t\r\n,;()[]{}";
    TextReader reader(text);
    Identifier read;
    read.name = reader.until(NotInNames);
    if (!reader.literal('@'))
        return false;
    read.scope = reader.until(NotInNames);
    return !read.name.empty() && !read.scope.empty() && finish(reader, read, value);
}
std::string VValueTrait<Identifier>::Text(Identifier const& value) {
    return value.name + "@" + value.scope;
}

bool VValueTrait<Nothing>::setValueFromText(Nothing&, std::string const& text) {
    return text.empty();
}
std::string VValueTrait<Nothing>::Text(Nothing const&) {
    return {};
}

}  // namespace Orlo
