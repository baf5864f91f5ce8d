/// The library's border towards the operating system's loader.
#pragma once

#include <cstdint>

#include "host/pointers/threads.hpp"

namespace prism {

/// The reasons with which the operating system calls.
enum LoaderReason : std::uint32_t {
    ProcessDetach = 0,
    ProcessAttach = 1,
    ThreadAttach = 2,
    ThreadDetach = 3,
};

/// Tells the host why the loader called; a reason that it does not know tells
/// it nothing. The handle and the reserved pointer are not read. Always 1: a
/// refusal of the host cannot stop the load here. [loader]
int entryRoutine(void* module, std::uint32_t reason, void* reserved);

}  // namespace prism
