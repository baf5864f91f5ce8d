/// What entries of the catalogue say of themselves.
#pragma once

#include <string>
#include <vector>

#include "host/creators/VCreatorBase.hpp"

namespace workbench {

/// The name in a key: what stands behind its last slash.
std::string nameIn(std::string const& key);

/// The tags of an entry, in their order.
std::vector<std::string> tagsOf(Orlo::VCreatorBase const& entry);

}  // namespace workbench
