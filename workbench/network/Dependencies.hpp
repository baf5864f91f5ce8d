/// Who reads whom in a network.
#pragma once

#include <unordered_map>
#include <vector>

#include "host/object/VObject.hpp"

namespace workbench {

/// The connections of a network's objects, seen from both of their ends.
///
/// Owner: a network; an object that goes must be forgotten before. Threads:
/// [host].
class Dependencies {
public:
    /// Takes over what an object is connected to now.
    void read(Orlo::VObject const& object);
    void forget(Orlo::VObject const& object);

    /// Whether another object is connected to this very parameter.
    bool isRead(Orlo::VObject const& object, Orlo::VParameter const& parameter) const;

    /// Whether an object reads, by whatever way, what another provides. An object
    /// does so of itself.
    bool dependsOn(Orlo::VObject const& consumer, Orlo::VObject const& provider) const;

private:
    using Objects = std::vector<Orlo::VObject const*>;
    struct Links {
        Objects providers;
        Objects consumers;
    };
    class Search;

    std::unordered_map<Orlo::VObject const*, Links> links_;
};

}  // namespace workbench
