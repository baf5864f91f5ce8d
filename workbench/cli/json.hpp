/// Results as JSON.
#pragma once

#include <cmath>
#include <string>

#include "workbench/cli/numbers.hpp"
#include "workbench/common/Json.hpp"

namespace workbench {

/// A number in its shortest form. JSON knows no infinity and no NaN: these are
/// the texts "inf", "-inf" and "nan".
template <class Number>
Json jsonNumber(Number value) {
    std::string const text = shortest(value);
    return std::isfinite(value) ? Json(readNumber(text).value()) : Json(text);
}

/// The whole document, as a command prints it.
inline std::string jsonDocument(Json const& json) {
    return jsonText(json, 2) + "\n";
}

}  // namespace workbench
