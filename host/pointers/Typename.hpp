/// Readable names of types.
#pragma once

#include <string>
#include <typeinfo>

#include "host/pointers/import.hpp"
#include "host/pointers/threads.hpp"

namespace Nucleo {

/// The name of the type as a programmer writes it, such as `double` or
/// `Orlo::FlagList`. [any]
NUCLEO_API std::string Typename(std::type_info const& type);

}  // namespace Nucleo
