/// Connections between the objects of a network.
#pragma once

#include <string>

#include "host/object/VObject.hpp"
#include "workbench/network/Dependencies.hpp"

namespace workbench {

/// Connects an input of `consumer` to `provider`: to the parameter named, or
/// without a name to the first of its outputs that fits. An input that the
/// consumer makes on demand is made. `dependencies` are those of all connections
/// that there are, and then of this one too.
///
/// Throws `CallError` that says what does not fit: an unknown input, a
/// parameter or output that is not there, types that differ, a cycle. The
/// connections are as they were then. [host]
void connect(Orlo::VObject& consumer, std::string const& input, Orlo::VObject& provider,
             std::string const& parameter, Dependencies& dependencies);

}  // namespace workbench
