#include "workbench/cli/Output.hpp"

#include <cerrno>
#include <string>
#include <system_error>

#include "workbench/common/errors.hpp"

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace workbench {

namespace {

constexpr int StandardOutput = 1;
constexpr int StandardError = 2;

#if defined(_WIN32)
constexpr auto* duplicate = _dup;
constexpr auto* duplicateTo = _dup2;
constexpr auto* openDescriptor = _fdopen;
#else
constexpr auto* duplicate = dup;
constexpr auto* duplicateTo = dup2;
constexpr auto* openDescriptor = fdopen;
#endif

[[noreturn]] void fail() {
    throw WorkError("cannot write the results to standard output: " +
                    std::generic_category().message(errno));
}

}  // namespace

Output::Output(bool apart) {
    if (!apart)
        return;
    std::fflush(stdout);
    int const real = duplicate(StandardOutput);
    apart_ = real >= 0 ? openDescriptor(real, "w") : nullptr;
    if (apart_ == nullptr || duplicateTo(StandardError, StandardOutput) < 0)
        fail();
}

Output::~Output() {
    std::fflush(stdout);
    if (apart_ == nullptr)
        return;
    duplicateTo(fileno(apart_), StandardOutput);
    std::fclose(apart_);
}

void Output::write(std::string_view text) {
    std::FILE* const target = apart_ != nullptr ? apart_ : stdout;
    std::size_t const written = std::fwrite(text.data(), 1, text.size(), target);
    if (written != text.size() || std::fflush(target) != 0)
        fail();
}

}  // namespace workbench
