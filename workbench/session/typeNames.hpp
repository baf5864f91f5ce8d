/// The names of value types as people read them.
#pragma once

#include <string>
#include <typeinfo>

namespace workbench {

/// The short name of a value type: "double", "Enum", "rgba_float_t", "string".
/// For a type that has none here, its own name without namespaces; shared data
/// has the name of what is shared.
std::string typeName(std::type_info const& type);

}  // namespace workbench
