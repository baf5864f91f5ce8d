/// One object of an entry, and the map that it publishes.
#pragma once

#include <string>
#include <vector>

#include "host/colormap/Colormap.hpp"
#include "workbench/session/Session.hpp"

namespace workbench {

/// An object made from the catalogue, with parameters set, brought up to date.
///
/// Must go before the session does. Threads: one at a time.
class MapObject {
public:
    /// The settings are texts NAME=TEXT. Throws `CallError` for an unknown
    /// entry, a setting of another form, an unknown parameter and a text that
    /// does not parse; `WorkError` if the object publishes no map.
    MapObject(Session const& session, std::string const& key,
              std::vector<std::string> const& settings = {});
    MapObject(MapObject const&) = delete;
    MapObject& operator=(MapObject const&) = delete;

    /// The full key of the entry.
    std::string const& key() const noexcept { return key_; }
    Orlo::VObject const& object() const { return *object_; }
    Orlo::Colormap const& map() const { return *map_; }
    /// The same map, to be held.
    Orlo::ColormapPtr const& heldMap() const { return map_; }

private:
    std::string key_;
    Orlo::PoolPtr pool_;
    Orlo::ObjectPtr object_;
    Orlo::ColormapPtr map_;
};

}  // namespace workbench
