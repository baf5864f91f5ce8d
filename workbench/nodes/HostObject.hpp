/// The base of the objects that the host brings along.
#pragma once

#include "workbench/nodes/Node.hpp"

namespace workbench {

/// Base of what the host brings along by itself: no creator makes these, and
/// they take inputs of any name. Names of their outputs begin with two colons,
/// so that scripts can use all others for parameters.
class HostObject : public Node {
public:
    explicit HostObject(std::string const& name);

    Orlo::SlotPtr makeInput(std::string const& name) override;

protected:
    /// An output "::object" that says no more than that the object is there.
    void makePresence();
};

/// A host object whose behaviour no picture needs: it keeps its parameters and
/// connections, and provides its presence.
class Placeholder : public HostObject {
public:
    explicit Placeholder(std::string const& name);
};

}  // namespace workbench
