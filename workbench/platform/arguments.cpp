#include "workbench/platform/arguments.hpp"

#if defined(_WIN32)
#include <windows.h>

#include <memory>
#endif

namespace workbench {

#if defined(_WIN32)

namespace {

/// Half a character, which a file name may hold here, becomes the replacement
/// character.
std::string inUtf8(wchar_t const* text) {
    int const size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), size, nullptr, nullptr);
    result.pop_back();  // the zero at the end
    return result;
}

}  // namespace

/// The texts that `main` is given stand in the code page of the system, which
/// lacks most letters.
std::vector<std::string> programArguments(int, char**) {
    int count = 0;
    std::unique_ptr<LPWSTR[], decltype(&LocalFree)> const texts(
        CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(inUtf8(texts[static_cast<std::size_t>(i)]));
    return arguments;
}

#else

std::vector<std::string> programArguments(int count, char** texts) {
    return {texts + (count > 0 ? 1 : 0), texts + count};
}

#endif

}  // namespace workbench
