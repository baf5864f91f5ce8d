/// What the page and the server tell each other.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace workbench {

/// Keeps its keys in the order in which they are written.
using Json = nlohmann::ordered_json;

/// The document on one line. What is no UTF-8 in a text becomes the replacement
/// character, and what is no finite number is null.
inline std::string textOf(Json const& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace workbench
