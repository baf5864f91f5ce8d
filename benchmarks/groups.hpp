/// The groups of benchmarks; each registers its own and says how to report them.
#pragma once

#include <filesystem>

#include "benchmarks/Table.hpp"

namespace benchmarks {

/// These three need the plug-in loaded while they are registered and run.
Group lookups();
Group formulaLookups();
std::vector<Group> updates();

Group pointers();
std::vector<Group> distinctColors();

/// Loads and unloads the plug-in file itself; nobody else may hold it.
Group loading(std::filesystem::path const& plugin);

}  // namespace benchmarks
