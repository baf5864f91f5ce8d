/// Connections between the objects of a network.
#pragma once

#include <string>

#include "host/object/VObject.hpp"

namespace workbench {

/// Connects an input of `consumer` to `provider`: to the parameter named, or
/// without a name to the first of its outputs that fits. An input that the
/// consumer makes on demand is made.
///
/// Throws `CallError` that says what does not fit: an unknown input, a
/// parameter or output that is not there, types that differ, a cycle. The
/// connections are as they were then. [host]
void connect(Orlo::VObject& consumer, std::string const& input, Orlo::VObject& provider,
             std::string const& parameter);

}  // namespace workbench
