/// Changes of a saved network that leave all else as it stands.
#pragma once

#include <string>
#include <vector>

#include "workbench/network/Script.hpp"

namespace workbench {

/// Writes a value into a script: the last line of that place gets the new text
/// (of an object that is deleted and made again only lines of the living one), or, if there is
/// none, a new line is put in: parameters in the given order behind the object's beginning, the
/// values of contexts before the plain one, in front of the object's attributes; attributes in
/// their own order behind those. A line that says the same already keeps its text.
///
/// An object that the script does not hold is left out.
void writeValue(Script& script, ValuePath const& path, std::string const& value,
                std::vector<std::string> const& parameterOrder);

}  // namespace workbench
