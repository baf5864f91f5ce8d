/// Results as JSON.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "workbench/cli/numbers.hpp"

namespace workbench {

/// Keeps its keys in the order in which they are written.
using Json = nlohmann::ordered_json;

/// A number in its shortest form. JSON knows no infinity and no NaN: these are
/// the texts "inf", "-inf" and "nan".
template <class Number>
Json jsonNumber(Number value) {
    std::string const text = shortest(value);
    bool const finite = value - value == 0;
    return finite ? Json(readNumber(text).value()) : Json(text);
}

/// The whole document. What is no UTF-8 in a text becomes the replacement
/// character.
inline std::string jsonDocument(Json const& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace workbench
