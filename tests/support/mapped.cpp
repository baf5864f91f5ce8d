#include "tests/support/mapped.hpp"

#include "tests/support/sanitizers.hpp"

#if defined(_WIN32)

#include <windows.h>

#include <filesystem>
#include <vector>

namespace tests {

bool isMapped(std::string const& fileName) {
    return GetModuleHandleW(std::filesystem::path(fileName).c_str()) != nullptr;
}

std::size_t heapBytes() {
    std::vector<HANDLE> heaps(64);
    heaps.resize(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
    std::size_t sum = 0;
    for (HANDLE const heap : heaps) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heap);
        while (HeapWalk(heap, &entry))
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
                sum += entry.cbData;
        HeapUnlock(heap);
    }
    return sum;
}

unsigned nextThreadIndex() {
    DWORD const index = TlsAlloc();
    TlsFree(index);
    return static_cast<unsigned>(index);
}

}  // namespace tests

#else

#include <malloc.h>

#include <fstream>

#if TESTS_ADDRESS_SANITIZER
// The sanitizer's own count; not every compiler brings the header for it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace tests {

bool isMapped(std::string const& fileName) {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.ends_with("/" + fileName))
            return true;
    return false;
}

std::size_t heapBytes() {
#if TESTS_ADDRESS_SANITIZER
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

unsigned nextThreadIndex() {
    return 0;
}

}  // namespace tests

#endif
