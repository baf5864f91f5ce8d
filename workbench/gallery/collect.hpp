/// The entries of a plug-in as the gallery shows them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "workbench/gallery/Exhibit.hpp"
#include "workbench/session/Session.hpp"

namespace workbench {

/// Looks everything up. `remark` hears which settings are left out since a map
/// does not take them: a plug-in may have a map of a known key with parameters
/// of its own. Throws `WorkError` for an entry that publishes no map.
std::vector<Exhibit> exhibitsOf(Session const& session,
                                std::function<void(std::string const&)> const& remark);

}  // namespace workbench
