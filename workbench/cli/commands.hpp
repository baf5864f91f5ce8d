/// The commands of the program, and what they share of the command line.
#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>

namespace workbench {

/// The options that stand before the command.
struct CommonOptions {
    std::filesystem::path plugin;  ///< empty: the one that lies beside the program
    int verbosity = -1;            ///< messages up to this level are shown; -1 shows none
    bool refuse = false;           ///< answer every plug-in "not compatible"
};

// Each adds its command to the program. A command runs when the program parses
// its arguments; `common` must live until then. A command fails by an exception:
// `CallError`, or any other for work that failed.

void addCatalogue(CLI::App& program, CommonOptions const& common);
void addColor(CLI::App& program, CommonOptions const& common);
void addDescribe(CLI::App& program, CommonOptions const& common);
void addGallery(CLI::App& program, CommonOptions const& common);
void addLookup(CLI::App& program, CommonOptions const& common);
void addRamp(CLI::App& program, CommonOptions const& common);
void addRun(CLI::App& program, CommonOptions const& common);

}  // namespace workbench
