/// The value types that saved networks use beside those of the contract.
#pragma once

#include <string>

#include "host/values/VValueTrait.hpp"
#include "workbench/scene/geometry.hpp"

namespace workbench {

/// The part of space between two opposite corners.
struct Box {
    Point min;
    Point max;

    bool operator==(Box const&) const = default;
};

/// The name of something within something else: a field of a bundle.
struct Identifier {
    std::string name;
    std::string scope;

    bool operator==(Identifier const&) const = default;
};

/// An action or a status: there is nothing to say about it.
struct Nothing {
    bool operator==(Nothing const&) const = default;
};

/// Makes all value types of saved networks known to the host, once. [any]
void registerNodeTypes();

/// The name of the value type whose text form the text is, as the host's type
/// registry knows it; a text of no particular form is a `std::string`. [any]
std::string inferType(std::string const& text);

}  // namespace workbench

namespace Orlo {

/// `true`, `false`.
template <>
struct VValueTrait<bool> {
    static bool setValueFromText(bool& value, std::string const& text);
    static std::string Text(bool const& value);
};

/// `{0,2.4,1}`.
template <>
struct VValueTrait<workbench::Point> {
    static bool setValueFromText(workbench::Point& value, std::string const& text);
    static std::string Text(workbench::Point const& value);
};

/// `[{0,0,0};{1,1,1}]`.
template <>
struct VValueTrait<workbench::Box> {
    static bool setValueFromText(workbench::Box& value, std::string const& text);
    static std::string Text(workbench::Box const& value);
};

/// `1046x650`, `0.03x0.03`.
template <>
struct VValueTrait<workbench::Pair> {
    static bool setValueFromText(workbench::Pair& value, std::string const& text);
    static std::string Text(workbench::Pair const& value);
};

/// `radialfield@radialfield`: name and scope, neither of them empty, without
/// blanks, brackets, commas, semicolons or further at signs.
template <>
struct VValueTrait<workbench::Identifier> {
    static bool setValueFromText(workbench::Identifier& value, std::string const& text);
    static std::string Text(workbench::Identifier const& value);
};

/// The empty text.
template <>
struct VValueTrait<workbench::Nothing> {
    static bool setValueFromText(workbench::Nothing& value, std::string const& text);
    static std::string Text(workbench::Nothing const& value);
};

}  // namespace Orlo
