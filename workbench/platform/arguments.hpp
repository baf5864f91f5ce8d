/// The arguments of the program, the same on every system.
#pragma once

#include <string>
#include <vector>

namespace workbench {

/// What stands behind the program's name, in UTF-8.
std::vector<std::string> programArguments(int count, char** texts);

}  // namespace workbench
