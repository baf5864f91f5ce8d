/// The commands of the program.
#pragma once

#include <CLI/CLI.hpp>

#include "workbench/session/Session.hpp"

namespace workbench {

// Each adds its command to the program. A command runs when the program parses
// its arguments; `common`, the options that stand before the command, must live
// until then. A command fails by an exception: `CallError`, or any other for work
// that failed.

void addCatalogue(CLI::App& program, SessionOptions const& common);
void addColor(CLI::App& program, SessionOptions const& common);
void addDescribe(CLI::App& program, SessionOptions const& common);
void addExport(CLI::App& program, SessionOptions const& common);
void addGallery(CLI::App& program, SessionOptions const& common);
void addLookup(CLI::App& program, SessionOptions const& common);
void addRamp(CLI::App& program, SessionOptions const& common);
void addRun(CLI::App& program, SessionOptions const& common);
void addServe(CLI::App& program, SessionOptions const& common);
void addValidate(CLI::App& program, SessionOptions const& common);

}  // namespace workbench
