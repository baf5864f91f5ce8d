/// Where a file of a map comes from.
#pragma once

#include "workbench/export/Model.hpp"
#include "workbench/session/MapObject.hpp"

namespace workbench {

/// The entry, and all its parameters with their present texts. `maker` is the
/// program that writes, `command` its arguments.
Origin originOf(Session const& session, MapObject const& subject, std::string const& maker,
                std::vector<std::string> const& command);

}  // namespace workbench
