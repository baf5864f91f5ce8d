/// Passes the host's answer on as yes or no.
#include "host/creators/VInitialization.hpp"
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

#if defined(_WIN32)
#define PRISM_ALSO  // named by the linker's definition file
#else
#define PRISM_ALSO [[gnu::visibility("default")]]
#endif

extern "C" PRISM_ALSO int TELM_QUESTION(VInitialization* host) {
    return host->IsCompatible(InterfaceToken) != 0 ? 1 : 0;
}
