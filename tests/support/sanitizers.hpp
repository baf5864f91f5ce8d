/// Which sanitizers a test is built with: gcc and clang say it in ways of their own.
#pragma once

#if defined(__has_feature)
#define TESTS_HAS_FEATURE(feature) __has_feature(feature)
#else
#define TESTS_HAS_FEATURE(feature) 0
#endif

#if defined(__SANITIZE_ADDRESS__) || TESTS_HAS_FEATURE(address_sanitizer)
#define TESTS_ADDRESS_SANITIZER 1
#else
#define TESTS_ADDRESS_SANITIZER 0
#endif

#if defined(__SANITIZE_THREAD__) || TESTS_HAS_FEATURE(thread_sanitizer)
#define TESTS_THREAD_SANITIZER 1
#else
#define TESTS_THREAD_SANITIZER 0
#endif

namespace tests {

/// How many links a chain has that no stack is deep enough for. A sanitizer's frames
/// are several times as large, and its allocations dear.
#if TESTS_ADDRESS_SANITIZER || TESTS_THREAD_SANITIZER
constexpr int LongChain = 20'000;
#else
constexpr int LongChain = 100'000;
#endif

}  // namespace tests
