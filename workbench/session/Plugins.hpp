/// Several plug-ins in one host.
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "runtime/lattice/Catalogue.hpp"
#include "workbench/session/PluginFile.hpp"

namespace workbench {

/// The files of the named plug-ins, in their order. A folder stands for the plug-ins in
/// it, in the order of their names: saved networks, which have the same ending, and
/// libraries of other systems are passed by. No name at all means the plug-in beside the
/// program. Throws `PluginError` for a folder without plug-ins.
std::vector<std::filesystem::path> pluginFiles(std::vector<std::filesystem::path> const& named);

/// Plug-ins, loaded in their order and unloaded in reverse, so that what a later one has
/// of an earlier one, such as the creator of a value type, outlives its use.
///
/// Threads: one at a time.
class Plugins {
public:
    /// Loads these files. Throws `PluginError` if one cannot be had, is named twice, or
    /// has the key of an entry that an earlier one has; all are unloaded then.
    Plugins(std::vector<std::filesystem::path> const& files, Orlo::VInitialization& host);
    Plugins(Plugins const&) = delete;
    Plugins& operator=(Plugins const&) = delete;
    ~Plugins();

    std::size_t count() const noexcept { return plugins_.size(); }

    /// Their entries, in the order of registration.
    std::vector<Orlo::WeakCreatorPtr> const& entries() const noexcept { return entries_; }

    /// The plug-in that brought one of the entries.
    PluginFile const& pluginOf(Orlo::VCreatorBase const& entry) const;

private:
    void load(std::filesystem::path const& file, Orlo::VInitialization& host);
    void takeEntries(std::size_t first, PluginFile const& plugin);
    void unload();

    std::vector<std::unique_ptr<PluginFile>> plugins_;
    std::vector<Orlo::WeakCreatorPtr> entries_;
    std::vector<PluginFile const*> providers_;  ///< of each entry
};

}  // namespace workbench
