/// A host with its plug-ins.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/session/Plugins.hpp"

namespace workbench {

/// How the host is to be.
struct SessionOptions {
    /// Files and folders of plug-ins, see `pluginFiles`.
    std::vector<std::filesystem::path> plugins = {};
    int verbosity = -1;   ///< messages up to this level are shown; -1 shows none
    bool refuse = false;  ///< answer every plug-in "not compatible"
};

/// Loads the plug-ins, and unloads them at the end.
///
/// Objects and maps of theirs must be let go of before. Messages of the
/// host go to standard error, so that they do not get into results. Threads: one
/// at a time.
class Session {
public:
    /// Throws `PluginError` if a plug-in cannot be had.
    explicit Session(SessionOptions const& options = {});
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;

    /// The entries that the plug-ins brought, in the order of their registration.
    std::vector<Orlo::WeakCreatorPtr> const& entries() const noexcept { return plugins_.entries(); }
    /// The plug-in that brought an entry.
    PluginFile const& pluginOf(Orlo::VCreatorBase const& entry) const {
        return plugins_.pluginOf(entry);
    }
    std::size_t pluginCount() const noexcept { return plugins_.count(); }

    /// The entry of that full key, or of that name without its folder. Throws
    /// `CallError` with the nearest names if there is none.
    Orlo::WeakCreatorPtr find(std::string const& key) const;

private:
    Orlo::VInitialization host_;
    Plugins plugins_;
};

}  // namespace workbench
