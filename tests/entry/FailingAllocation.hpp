/// Allocations that fail on purpose.
///
/// The program that links this has an `operator new` of its own, which all
/// shared libraries of the process use.
#pragma once

namespace tests {

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

/// Blocks that `operator new` has given out and nobody has given back.
long liveAllocations();

}  // namespace tests
