/// For programs that do not watch, and for systems where a library keeps the allocator
/// that it was linked to.
#include "workbench/platform/FailingAllocation.hpp"

namespace workbench {

bool seesAllocations() {
    return false;
}

FailingAllocation::FailingAllocation(int, Failing) {}
FailingAllocation::~FailingAllocation() = default;

bool FailingAllocation::hasFailed() const noexcept {
    return false;
}

long liveAllocations() {
    return 0;
}

unsigned long allocationsOfThread() {
    return 0;
}

SpoiledMemory::SpoiledMemory() = default;
SpoiledMemory::~SpoiledMemory() = default;

}  // namespace workbench
