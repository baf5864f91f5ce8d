#include "workbench/platform/program.hpp"

#include "workbench/common/paths.hpp"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace workbench {

namespace fs = std::filesystem;

namespace {

#if defined(_WIN32)

constexpr char const* Ending = ".exe";

fs::path programFile() {
    std::wstring text(32768, L'\0');
    text.resize(GetModuleFileNameW(nullptr, text.data(), static_cast<DWORD>(text.size())));
    return text;
}

#else

constexpr char const* Ending = "";

fs::path programFile() {
    return fs::read_symlink("/proc/self/exe");
}

#endif

}  // namespace

fs::path fileBesideProgram(std::string const& name) {
    return programFile().parent_path() / pathOf(name);
}

std::string programFileName(std::string const& name) {
    return name + Ending;
}

}  // namespace workbench
