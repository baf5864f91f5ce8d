/// Where the host's diagnostics go.
#pragma once

#include <cstdio>

#include "host/pointers/import.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// Messages of `Vprintf` up to this level are printed; at first none is. [host]
LATTICE_API void setVerbosity(int level);
LATTICE_API int verbosity();

/// Where `Vprintf` prints: at first standard output. Null restores that. The
/// file stays the caller's and must outlive its use. [host]
LATTICE_API void setDiagnosticOutput(std::FILE* file);
LATTICE_API std::FILE* diagnosticOutput();

}  // namespace Orlo
