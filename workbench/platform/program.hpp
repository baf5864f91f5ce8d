/// The running program.
#pragma once

#include <filesystem>
#include <string>

namespace workbench {

/// The file of the program itself.
std::filesystem::path programFile();

/// A file that lies beside the program, in the same folder.
std::filesystem::path fileBesideProgram(std::string const& name);

/// The name of a program's file: the given name with the system's ending.
std::string programFileName(std::string const& name);

}  // namespace workbench
