/// JSON, as whatever writes or reads it here does.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace workbench {

/// Keeps its keys in the order in which they are written.
using Json = nlohmann::ordered_json;

/// The document: each level indented by so many blanks, or all on one line. What is no
/// UTF-8 in a text becomes the replacement character, and what is no finite number is null.
std::string jsonText(Json const& json, int indent = -1);

/// What a text says; discarded (`is_discarded`) if that is no JSON.
Json readJson(std::string const& text);

}  // namespace workbench

// Compiled once, in Json.cpp: every source would take seconds for it.
extern template class nlohmann::basic_json<nlohmann::ordered_map>;
