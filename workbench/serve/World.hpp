/// A host at work: plug-ins, kinds of nodes, and a network.
#pragma once

#include <memory>
#include <optional>
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
    /// Without any plug-in.
    explicit World(Script const& script);
    World(World const&) = delete;
    World& operator=(World const&) = delete;

    /// Null if there is no plug-in.
    Session const* session() const noexcept { return session_ ? &*session_ : nullptr; }
    Network& network() noexcept { return *network_; }
    Network const& network() const noexcept { return *network_; }

    /// Puts another network in the place of the present one.
    void replace(std::unique_ptr<Network> network) { network_ = std::move(network); }

private:
    std::optional<Session> session_;
    NodeCreators kinds_;
    std::unique_ptr<Network> network_;
};

/// The network of a script.
std::unique_ptr<Network> networkOf(Script const& script);

/// Whether one of its outputs is a map.
bool isMap(Orlo::VObject const& object);

}  // namespace workbench
