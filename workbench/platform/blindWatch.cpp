/// For programs that do not watch, and for systems where a library keeps the functions
/// that it was linked to. Sanitizers have these functions in their own hands.
#include "workbench/platform/Watch.hpp"

namespace workbench {

Watch::Watch() = default;
Watch::~Watch() = default;

bool Watch::sees() {
    return false;
}

unsigned Watch::locks() const {
    return 0;
}

std::vector<std::string> Watch::touched() const {
    return {};
}

}  // namespace workbench
