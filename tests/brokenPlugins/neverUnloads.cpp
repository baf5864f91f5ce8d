/// Stays in the process when it is unloaded.
#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

#if defined(_WIN32)

#include <windows.h>

namespace {

/// Pins the library; on the other system the linker does.
bool pinned() {
    HMODULE module = nullptr;
    return GetModuleHandleExW(
               GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
               reinterpret_cast<wchar_t const*>(&pinned), &module) != 0;
}
bool const isPinned = pinned();

}  // namespace

#endif
