/// What plug-ins have reported to the host.
#pragma once

#include <cstddef>
#include <vector>

#include "host/creators/VInitialization.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// One call of `VInitialization::initPlugin`. The texts are the plug-in's own
/// constants and go with it.
struct PluginReport {
    VInitialization::InitPluginReason reason;
    char const* moduleName;
    char const* token;
    std::size_t creatorsStanding;  ///< entries in the catalogue at that moment
};

/// Notes a call for `takePluginReports`. [any]
void noteReport(VInitialization::InitPluginReason reason, char const* moduleName,
                char const* token);

/// The reports since the last call, in their order. [any]
LATTICE_API std::vector<PluginReport> takePluginReports();

}  // namespace Orlo
