#include "workbench/platform/browser.hpp"

#if defined(_WIN32)
#include <windows.h>
// behind it
#include <shellapi.h>
#else
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace workbench {

#if defined(_WIN32)

bool openInBrowser(std::string const& address) {
    constexpr INT_PTR LastError = 32;
    return reinterpret_cast<INT_PTR>(ShellExecuteA(nullptr, "open", address.c_str(), nullptr,
                                                   nullptr, SW_SHOWNORMAL)) > LastError;
}

#else

/// The program that desktops have for it hands the address on, and ends.
bool openInBrowser(std::string const& address) {
    std::string program = "xdg-open";
    std::string argument = address;
    char* const arguments[] = {program.data(), argument.data(), nullptr};
    pid_t child = 0;
    if (posix_spawnp(&child, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
        return false;
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

#endif

}  // namespace workbench
