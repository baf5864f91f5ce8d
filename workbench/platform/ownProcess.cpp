#include "workbench/platform/ownProcess.hpp"

#include <sys/stat.h>
#include <sys/types.h>

#include <algorithm>
#include <cstdio>
#include <fstream>

#include "workbench/common/paths.hpp"
#include "workbench/platform/sanitizers.hpp"

#if defined(_WIN32)
// clang-format off
#include <windows.h>
#include <tlhelp32.h>
// clang-format on
#else
#include <malloc.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>

#if PRISM_ADDRESS_SANITIZER
// The sanitizer's own count; not every compiler brings the header for it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif
#endif

namespace workbench {

#if defined(_WIN32)

bool isMapped(std::string const& fileName) {
    return GetModuleHandleW(pathOf(fileName).c_str()) != nullptr;
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

std::size_t threadCount() {
    HANDLE const snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    std::size_t count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry))
        count += entry.th32OwnerProcessID == GetCurrentProcessId() ? 1U : 0U;
    CloseHandle(snapshot);
    return count;
}

std::size_t openHandles() {
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return count;
}

std::vector<std::string> environment() {
    std::vector<std::string> all;
    wchar_t* const block = GetEnvironmentStringsW();
    for (wchar_t const* text = block; *text != L'\0'; text += std::wstring_view(text).size() + 1)
        all.push_back(textOf(text));
    FreeEnvironmentStringsW(block);
    std::ranges::sort(all);
    return all;
}

std::size_t writtenBytes() {
    struct _stat64 file {};
    return _fstat64(_fileno(stdout), &file) == 0 ? static_cast<std::size_t>(file.st_size) : 0;
}

bool loaderIsSlow() {
    return true;
}

void endWithParent() {}

#else

namespace {

std::size_t entriesIn(char const* folder) {
    std::filesystem::directory_iterator const all(folder);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

}  // namespace

bool isMapped(std::string const& fileName) {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.ends_with("/" + fileName))
            return true;
    return false;
}

std::size_t heapBytes() {
#if PRISM_ADDRESS_SANITIZER
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

unsigned nextThreadIndex() {
    return 0;
}

std::size_t threadCount() {
    return entriesIn("/proc/self/task");
}

std::size_t openHandles() {
    return entriesIn("/proc/self/fd");
}

std::vector<std::string> environment() {
    std::vector<std::string> all;
    for (char** text = environ; *text != nullptr; ++text)
        all.emplace_back(*text);
    std::ranges::sort(all);
    return all;
}

std::size_t writtenBytes() {
    struct stat file {};
    return fstat(fileno(stdout), &file) == 0 && S_ISREG(file.st_mode)
               ? static_cast<std::size_t>(file.st_size)
               : 0;
}

bool loaderIsSlow() {
    return false;
}

void endWithParent() {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

#endif

}  // namespace workbench
