/// What the file of a library says of itself.
#pragma once

#include <filesystem>
#include <string>

namespace workbench {

/// Why a file is no library that this program can load, as far as its headers
/// tell: it is of another kind, for another processor, or cut off. Empty if
/// nothing speaks against it. The system's loader trusts the headers, and a file
/// that ends before its segments do would end the program.
std::string libraryProblem(std::filesystem::path const& file);

/// Whether a file begins as libraries and programs of this system do.
bool beginsAsLibrary(std::filesystem::path const& file);

}  // namespace workbench
