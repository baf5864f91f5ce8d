#include "runtime/lattice/Diagnostics.hpp"

#include <atomic>
#include <cstdarg>

#include "host/values/Vprintf.hpp"

namespace Orlo {

namespace {

std::atomic<int> level{-1};
std::atomic<std::FILE*> output{nullptr};

}  // namespace

void setVerbosity(int newLevel) {
    level = newLevel;
}

int verbosity() {
    return level;
}

void setDiagnosticOutput(std::FILE* file) {
    output = file;
}

void Vprintf(int messageLevel, char const* format, ...) {
    if (level < messageLevel)
        return;
    std::FILE* const file = output;
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(file != nullptr ? file : stdout, format, arguments);
    va_end(arguments);
}

}  // namespace Orlo
