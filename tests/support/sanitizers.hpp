/// What tests leave out, or make smaller, for sanitizers.
#pragma once

#include "workbench/platform/sanitizers.hpp"

namespace tests {

/// How many links a chain has that no stack is deep enough for. A sanitizer's frames
/// are several times as large, and its allocations dear.
#if PRISM_ADDRESS_SANITIZER || PRISM_THREAD_SANITIZER
constexpr int LongChain = 20'000;
#else
constexpr int LongChain = 100'000;
#endif

}  // namespace tests
