/// Exports a second function.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

#if defined(_WIN32)
#define PRISM_ALSO  // named by the linker's definition file
#else
#define PRISM_ALSO [[gnu::visibility("default")]]
#endif

extern "C" PRISM_ALSO int another() {
    return 7;
}
