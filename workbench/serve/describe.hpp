/// A network as the page sees it.
#pragma once

#include <map>
#include <string>

#include "workbench/common/Json.hpp"
#include "workbench/serve/World.hpp"

namespace workbench {

/// What bringing everything up to date found wrong.
struct Refresh {
    std::map<std::string, std::string> viewers;  ///< reasons by name, of viewers that cannot draw
    std::map<std::string, std::string>
        objects;  ///< reasons by name, of objects whose update failed
};

/// Brings all viewers up to date, each with its own values, and all maps that none
/// of them shows with those of the first viewer. `maxSide` is the most pixels a
/// side.
Refresh bringUpToDate(Network& network, int maxSide);

/// The pool that holds for what no viewer shows: that of the first viewer.
Orlo::PoolPtr firstPool(Network& network);

/// The parts of the state that tell of a network.
Json complaintsOf(Network const& network);
Json viewersOf(Network& network, Refresh const& refresh);
Json nodesOf(Network& network, Refresh const& refresh);

/// All entries that can be made: those of the plug-ins, if there are any, then the
/// host's own.
Json catalogueOf(Session const* session);

}  // namespace workbench
