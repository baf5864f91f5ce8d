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
