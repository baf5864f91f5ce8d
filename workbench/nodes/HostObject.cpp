#include "workbench/nodes/HostObject.hpp"

#include "workbench/nodes/Port.hpp"

namespace workbench {

HostObject::HostObject(std::string const& name) : Node(name, 0, nullptr) {
    enableRequestProcessing();
}

Orlo::SlotPtr HostObject::makeInput(std::string const& name) {
    return makeAnyInput(name);
}

void HostObject::makePresence() {
    Output<PresencePtr>(this, "::object");
}

Placeholder::Placeholder(std::string const& name) : HostObject(name) {
    makePresence();
}

}  // namespace workbench
