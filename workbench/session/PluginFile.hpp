/// Plug-in files, loaded and unloaded.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "host/creators/VInitialization.hpp"
#include "workbench/platform/Library.hpp"

namespace workbench {

/// Why a plug-in could not be had: the file and the remedy are in the text.
class PluginError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// How the names of plug-in files end.
constexpr char PluginEnding[] = ".telm";

/// One loaded plug-in.
///
/// Loading runs the library's initialisers, which fill the catalogue, and asks
/// its export whether it fits. Unloading takes its entries and all their
/// objects away; whoever holds a map or a value that the plug-in made must let
/// go of it before. Threads: one at a time.
class PluginFile {
public:
    /// Throws `PluginError` if the file is missing, is no library, has no
    /// export of a plug-in or more than one, or if `host` does not take it; nothing stays loaded
    /// then.
    PluginFile(std::filesystem::path const& file, Orlo::VInitialization& host);
    PluginFile(PluginFile const&) = delete;
    PluginFile& operator=(PluginFile const&) = delete;
    ~PluginFile() = default;

    std::filesystem::path const& path() const noexcept { return path_; }
    /// What the module calls itself: the end of its export's name.
    std::string const& module() const noexcept { return module_; }
    /// The host's answer as it came back through the export.
    int answer() const noexcept { return answer_; }

private:
    std::filesystem::path path_;
    std::unique_ptr<Library> library_;
    std::string module_;
    int answer_;
};

/// The plug-in that was built beside this program.
std::filesystem::path pluginBesideProgram();

}  // namespace workbench
