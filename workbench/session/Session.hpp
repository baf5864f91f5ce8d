/// A host with its plug-in.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "runtime/lattice/Catalogue.hpp"
#include "workbench/session/PluginFile.hpp"

namespace workbench {

/// How the host is to be.
struct SessionOptions {
    std::filesystem::path plugin = {};  ///< empty: the one that lies beside the program
    int verbosity = -1;                 ///< messages up to this level are shown; -1 shows none
    bool refuse = false;                ///< answer every plug-in "not compatible"
};

/// Loads the plug-in, and unloads it at the end.
///
/// Objects and maps of the plug-in must be let go of before. Messages of the
/// host go to standard error, so that they do not get into results. Threads: one
/// at a time.
class Session {
public:
    /// Throws `PluginError` if the plug-in cannot be had.
    explicit Session(SessionOptions const& options = {});
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
