/// Diagnostics of the host.
#pragma once

#include "host/pointers/import.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// Prints like `printf` if the host's verbosity is at least `level`.
///
/// Levels in use: 50 for a parameter that is set, 100 for creators and
/// creation. Where the text goes is the host's choice. [any]
#if defined(__GNUC__)
__attribute__((format(printf, 2, 3)))
#endif
LATTICE_API void
Vprintf(int level, char const* format, ...);

}  // namespace Orlo
