/// The running number of counted pointers.
#pragma once

#include <cstdint>

#include "host/pointers/import.hpp"
#include "host/pointers/threads.hpp"

namespace Nucleo {

/// Number of the counted pointer constructed last, empty ones included.
///
/// Read and written plainly, not atomically: it serves diagnostics only, and a
/// number that repeats under a race harms nobody, while an atomic one would
/// cost every copy of a pointer.
extern NUCLEO_API std::uint32_t PointerID;

/// Takes the next number. [any]
inline std::uint32_t nextPointerID() noexcept {
    PointerID = PointerID + 1;
    return PointerID;
}

}  // namespace Nucleo
