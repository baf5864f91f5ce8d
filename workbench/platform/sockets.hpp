/// What differs between the sockets of the systems.
#pragma once

namespace workbench {

/// Whether a server may ask for an address that old connections still linger at.
/// On Windows the same request would take the address away from another program.
constexpr bool addressesMayBeReused() {
#if defined(_WIN32)
    return false;
#else
    return true;
#endif
}

}  // namespace workbench
