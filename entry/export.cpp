/// The single export: whether the host may use the library.
#include "host/creators/VInitialization.hpp"
#include "host/creators/interface_token.hpp"
#include "host/pointers/import.hpp"

#if defined(_WIN32)
#define TELM_VISIBLE  // the linker's definition file names the one export
#else
#define TELM_VISIBLE TELM_EXPORT
#endif

/// Its name, which the build gives, holds the date of the interface and the name of the
/// module. The host's answer passes through unchanged. [host]
extern "C" TELM_VISIBLE int TELM_QUESTION(Orlo::VInitialization* host) {
    return host->IsCompatible(Orlo::InterfaceToken);
}
