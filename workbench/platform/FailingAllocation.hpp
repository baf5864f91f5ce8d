/// Allocations that are counted, and fail on purpose.
///
/// The program that links this has an `operator new` of its own, which all
/// shared libraries of the process use where the system lets them.
#pragma once

namespace workbench {

/// Whether this program sees the allocations of its libraries. If not, nothing is
/// counted and nothing fails.
bool seesAllocations();

enum class Failing {
    Once,      ///< the n-th allocation fails
    FromThen,  ///< it and all that follow
};

/// Lets the allocations of this thread fail from the n-th on (counted from 1),
/// until it is destroyed.
class FailingAllocation {
public:
    FailingAllocation(int n, Failing mode);
    FailingAllocation(FailingAllocation const&) = delete;
    FailingAllocation& operator=(FailingAllocation const&) = delete;
    ~FailingAllocation();

    /// Whether any allocation has failed.
    bool hasFailed() const noexcept;
};

/// Blocks that have been given out and that nobody has given back.
long liveAllocations();

/// How often this thread has asked for memory so far.
unsigned long allocationsOfThread();

/// While it lives, memory that is given back is filled with a pattern that is no
/// right number and no right address, so that whoever still reads it is found out.
class SpoiledMemory {
public:
    SpoiledMemory();
    SpoiledMemory(SpoiledMemory const&) = delete;
    SpoiledMemory& operator=(SpoiledMemory const&) = delete;
    ~SpoiledMemory();
};

}  // namespace workbench
