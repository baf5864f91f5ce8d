#include "workbench/platform/StandardOutput.hpp"

#include <cerrno>
#include <string>
#include <system_error>

#include "workbench/common/errors.hpp"

#if defined(_WIN32)
#include <io.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace workbench {

namespace {

constexpr int OutputDescriptor = 1;
constexpr int ErrorDescriptor = 2;

#if defined(_WIN32)
constexpr auto* duplicate = _dup;
constexpr auto* duplicateTo = _dup2;
constexpr auto* openDescriptor = _fdopen;
#else
constexpr auto* duplicate = dup;
constexpr auto* duplicateTo = dup2;
constexpr auto* openDescriptor = fdopen;
#endif

#if defined(_WIN32)

bool leadsTo(std::filesystem::path const&, int) {
    return false;
}

#else

/// Whether a file is what a descriptor stands for.
bool leadsTo(std::filesystem::path const& file, int descriptor) {
    struct stat output {};
    struct stat other {};
    return fstat(descriptor, &output) == 0 && stat(file.c_str(), &other) == 0 &&
           output.st_dev == other.st_dev && output.st_ino == other.st_ino;
}

#endif

[[noreturn]] void fail() {
    throw WorkError("cannot write the results to standard output: " +
                    std::generic_category().message(errno));
}

}  // namespace

StandardOutput::StandardOutput(bool apart) {
    if (!apart)
        return;
    std::fflush(stdout);
    int const real = duplicate(OutputDescriptor);
    apart_ = real >= 0 ? openDescriptor(real, "w") : nullptr;
    if (apart_ == nullptr || duplicateTo(ErrorDescriptor, OutputDescriptor) < 0)
        fail();
}

StandardOutput::~StandardOutput() {
    std::fflush(stdout);
    if (apart_ == nullptr)
        return;
    duplicateTo(fileno(apart_), OutputDescriptor);
    std::fclose(apart_);
}

void StandardOutput::write(std::string_view text) {
    std::FILE* const target = apart_ != nullptr ? apart_ : stdout;
    std::size_t const written = std::fwrite(text.data(), 1, text.size(), target);
    if (written != text.size() || std::fflush(target) != 0)
        fail();
}

bool isStandardOutput(std::filesystem::path const& file) {
    return leadsTo(file, OutputDescriptor);
}

}  // namespace workbench
