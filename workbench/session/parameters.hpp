/// Parameters set from outside, by text.
#pragma once

#include <string>
#include <vector>

#include "host/object/VObject.hpp"

namespace workbench {

/// Gives an object's parameter the value that the text means: its own value or,
/// with a context, the value in that pool. The change is younger than all
/// before it, and listeners hear of it. A slot that is connected keeps reading
/// its provider; the value waits until the connection goes.
///
/// Throws `CallError` for an unknown parameter (with the nearest names), for an
/// output, and for a text that does not parse (with the type and the present
/// text as an example); nothing has changed then. [host]
void setParameter(Orlo::VObject& object, std::string const& name, std::string const& text,
                  Orlo::PoolPtr const& context = {});

/// The names of the inputs of an object, in their order.
std::vector<std::string> parameterNames(Orlo::VObject const& object);

}  // namespace workbench
