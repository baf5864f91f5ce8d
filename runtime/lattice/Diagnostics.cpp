#include "runtime/lattice/Diagnostics.hpp"

#include <atomic>

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

std::FILE* diagnosticOutput() {
    std::FILE* const file = output;
    return file != nullptr ? file : stdout;
}

}  // namespace Orlo
