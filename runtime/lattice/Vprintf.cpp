#include "host/values/Vprintf.hpp"

#include <cstdarg>

#include "runtime/lattice/Diagnostics.hpp"

namespace Orlo {

void Vprintf(int level, char const* format, ...) {
    if (verbosity() < level)
        return;
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(diagnosticOutput(), format, arguments);
    va_end(arguments);
}

}  // namespace Orlo
