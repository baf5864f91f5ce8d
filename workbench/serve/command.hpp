/// The command that makes the present picture.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "workbench/network/Script.hpp"

namespace workbench {

/// Names of the files that the command is to read.
struct CommandFiles {
    std::vector<std::string> plugins;
    std::string network;
};

/// The line `telmbench run FILE --set ... -o picture.png`, quoted for a shell, that
/// makes of a network's `file` what `present` shows. Places in the network editor
/// are left out, as no picture depends on them. `textAt` tells the text at a place of
/// which `present` says nothing. Throws `Conflict` if the two differ in more than
/// values.
std::string commandFor(CommandFiles const& files, Script const& file, Script const& present,
                       std::function<std::string(ValuePath const&)> const& textAt);

/// The text as one word for a shell.
std::string shellWord(std::string const& text);

}  // namespace workbench
