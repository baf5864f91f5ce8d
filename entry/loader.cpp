/// How the operating system reaches the entry routine.
#include "entry/EntryRoutine.hpp"

#if defined(_WIN32)

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved) {
    return prism::entryRoutine(module, reason, reserved);
}

#else

namespace {

/// Tells of the detach when it dies.
struct Detach {
    ~Detach() { prism::entryRoutine(nullptr, prism::ProcessDetach, nullptr); }
};

/// This source is linked last, so that the attach follows all initialisers and
/// the detach, as the static object made last, precedes all teardown: at
/// `dlclose` and at the end of the process alike. The loader of this system
/// tells nobody of threads.
[[gnu::constructor]] void attach() {
    prism::entryRoutine(nullptr, prism::ProcessAttach, nullptr);
    // Not by std::atexit, which under the thread sanitizer is the program's and
    // would call into the library after it has gone.
    static Detach const atTheEnd;
}

}  // namespace

#endif
