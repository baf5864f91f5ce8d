/// How the operating system reaches the entry routine.
#include "entry/EntryRoutine.hpp"

#if defined(_WIN32)

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved) {
    return prism::entryRoutine(module, reason, reserved);
}

#else

#include <cstdlib>

namespace {

/// This source is linked last, so that the attach follows all initialisers and
/// the detach, as the exit function registered last, precedes all teardown: at
/// `dlclose` and at the end of the process alike. The loader of this system
/// tells nobody of threads.
[[gnu::constructor]] void attach() {
    prism::entryRoutine(nullptr, prism::ProcessAttach, nullptr);
    static_cast<void>(
        std::atexit([] { prism::entryRoutine(nullptr, prism::ProcessDetach, nullptr); }));
}

}  // namespace

#endif
