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

/// Whether a line heads one of the last two sections, which programs write.
bool isSectionHead(Line const& line);

/// Lets a script make an object of a catalogue key: behind the last object, with
/// the deletion of one of that name before it, and a set-up line where objects are
/// set up. Throws `CallError` if the texts are no key and no name.
void addObject(Script& script, std::string const& key, std::string const& name);

/// Takes all lines of an object out, and the connections to it.
void removeObject(Script& script, std::string const& name);

/// Lets the living object of that name be made of another catalogue key. Throws
/// `CallError` if the script does not make it, or if the text is no key.
void replaceKey(Script& script, std::string const& name, std::string const& key);

/// Takes out the values of a parameter, those of contexts too; the parameter has
/// its default then.
void removeValues(Script& script, std::string const& object, std::string const& parameter);

/// The same for its properties.
void removeProperties(Script& script, std::string const& object, std::string const& parameter);

/// Writes a connection: in the place of one that the input has, or among the
/// others by the consumer's name and the order of its inputs, and behind the
/// beginnings of both objects. Throws `CallError` if it has no form of a line.
void writeConnection(Script& script, ConnectionLine const& connection,
                     std::vector<std::string> const& inputOrder);

/// Cuts the connection of an input; false if the script has none.
bool removeConnection(Script& script, std::string const& object, std::string const& input);

}  // namespace workbench
