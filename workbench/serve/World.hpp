/// A host at work: plug-ins, kinds of nodes, and a network.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "workbench/network/Network.hpp"
#include "workbench/nodes/NodeCreators.hpp"
#include "workbench/session/Session.hpp"

namespace workbench {

/// A session with the network that lives in it. All that a plug-in makes goes with
/// it, before the plug-in does. Threads: one at a time.
class World {
public:
    /// Throws `PluginError` if a plug-in cannot be had.
    World(SessionOptions const& options, Script const& script);
    World(World const&) = delete;
    World& operator=(World const&) = delete;

    Session const& session() const noexcept { return session_; }
    Network& network() noexcept { return *network_; }
    Network const& network() const noexcept { return *network_; }

    /// Puts another network in the place of the present one.
    void replace(std::unique_ptr<Network> network) { network_ = std::move(network); }

private:
    Session session_;
    NodeCreators kinds_;
    std::unique_ptr<Network> network_;
};

/// The network of a script.
std::unique_ptr<Network> networkOf(Script const& script);

/// Whether one of its outputs is a map.
bool isMap(Orlo::VObject const& object);

}  // namespace workbench
