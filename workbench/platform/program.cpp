#include "workbench/platform/program.hpp"

#include "workbench/common/paths.hpp"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace workbench {

namespace fs = std::filesystem;

#if defined(_WIN32)

namespace {
constexpr char const* Ending = ".exe";
}  // namespace

fs::path programFile() {
    std::wstring text(32768, L'\0');
    text.resize(GetModuleFileNameW(nullptr, text.data(), static_cast<DWORD>(text.size())));
    return text;
}

#else

namespace {
constexpr char const* Ending = "";
}  // namespace

fs::path programFile() {
    return fs::read_symlink("/proc/self/exe");
}

#endif

fs::path fileBesideProgram(std::string const& name) {
    return programFile().parent_path() / pathOf(name);
}

std::string programFileName(std::string const& name) {
    return name + Ending;
}

}  // namespace workbench
