/// The allocations of an operation, recorded, and done again without it.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace benchmarks {

/// The sizes in bytes of all blocks that the operation takes by `new`, in its
/// own libraries too.
std::vector<std::size_t> allocationsOf(std::function<void()> const& operation);

/// Takes blocks of these sizes and gives them back.
void allocateAgain(std::vector<std::size_t> const& sizes);

}  // namespace benchmarks
