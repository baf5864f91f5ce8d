/// Which sanitizers a program is built with: gcc and clang say it in ways of their own.
#pragma once

#if defined(__has_feature)
#define PRISM_HAS_FEATURE(feature) __has_feature(feature)
#else
#define PRISM_HAS_FEATURE(feature) 0
#endif

#if defined(__SANITIZE_ADDRESS__) || PRISM_HAS_FEATURE(address_sanitizer)
#define PRISM_ADDRESS_SANITIZER 1
#else
#define PRISM_ADDRESS_SANITIZER 0
#endif

#if defined(__SANITIZE_THREAD__) || PRISM_HAS_FEATURE(thread_sanitizer)
#define PRISM_THREAD_SANITIZER 1
#else
#define PRISM_THREAD_SANITIZER 0
#endif
