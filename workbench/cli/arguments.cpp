#include "workbench/cli/arguments.hpp"

#if defined(_WIN32)
#include <windows.h>

#include <filesystem>
#include <memory>
#endif

namespace workbench {

#if defined(_WIN32)

/// The texts that `main` is given stand in the code page of the system, which
/// lacks most letters.
std::vector<std::string> programArguments(int, char**) {
    int count = 0;
    std::unique_ptr<LPWSTR[], decltype(&LocalFree)> const texts(
        CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        std::u8string const text =
            std::filesystem::path(texts[static_cast<std::size_t>(i)]).u8string();
        arguments.emplace_back(text.begin(), text.end());
    }
    return arguments;
}

#else

std::vector<std::string> programArguments(int count, char** texts) {
    return {texts + (count > 0 ? 1 : 0), texts + count};
}

#endif

}  // namespace workbench
