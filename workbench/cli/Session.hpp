/// A host with its plug-in, for the length of one command.
#pragma once

#include <string>
#include <vector>

#include "runtime/lattice/Catalogue.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/plugin/PluginFile.hpp"

namespace workbench {

/// Loads the plug-in, and unloads it at the end.
///
/// Objects and maps of the plug-in must be let go of before. Messages of the
/// host go to standard error, so that they do not get into results. Threads: one
/// at a time.
class Session {
public:
    /// Throws `PluginError` if the plug-in cannot be had.
    explicit Session(CommonOptions const& options);
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;

    /// The entries that the plug-in brought, in the order of their registration.
    std::vector<Orlo::WeakCreatorPtr> const& entries() const noexcept { return entries_; }

    /// The entry of that full key, or of that name without its folder. Throws
    /// `CallError` with the nearest names if there is none.
    Orlo::WeakCreatorPtr find(std::string const& key) const;

private:
    Orlo::VInitialization host_;
    std::size_t before_;  ///< entries that stood before the plug-in came
    PluginFile plugin_;
    std::vector<Orlo::WeakCreatorPtr> entries_;
};

}  // namespace workbench
