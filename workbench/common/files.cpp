#include "workbench/common/files.hpp"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"

namespace workbench {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(char const* what, fs::path const& file, std::string const& reason) {
    throw WorkError(std::string("cannot ") + what + " " + inQuotes(textOf(file), 1000) + ": " +
                    reason);
}

/// What the last call of the C library failed with, in the same words on every
/// system.
std::string lastReason() {
    return errno != 0 ? std::generic_category().message(errno) : "the system gives no reason";
}

/// Where a symbolic link leads, so that the link survives.
fs::path followed(fs::path const& file) {
    std::error_code error;
    fs::path const target = fs::is_symlink(file, error) ? fs::canonical(file, error) : file;
    return error ? file : target;
}

/// A name beside the file that nobody else uses.
fs::path nameBeside(fs::path const& file) {
    fs::path name = file;
    name += "." + std::to_string(std::random_device()()) + ".part";
    return name;
}

/// Writes all bytes; the reason if that fails, else an empty text.
std::string tryWrite(fs::path const& file, std::string_view bytes) {
    errno = 0;
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    if (stream)
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (stream)
        stream.close();
    return stream ? std::string() : lastReason();
}

/// Renames; the reason if that fails, else an empty text.
std::string tryRename(fs::path const& from, fs::path const& to) {
    std::error_code error;
    fs::rename(from, to, error);
    return error ? error.default_error_condition().message() : std::string();
}

}  // namespace

std::string readFile(fs::path const& file) {
    std::error_code ignored;
    if (fs::is_directory(file, ignored))
        fail("read", file, "it is a folder");
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        fail("read", file, lastReason());
    std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (stream.bad())
        fail("read", file, lastReason());
    return bytes;
}

void writeFile(fs::path const& file, std::string_view bytes) {
    std::error_code ignored;
    fs::path const target = followed(file);
    fs::file_status const status = fs::status(target, ignored);
    if (fs::is_directory(status))
        fail("write", file, "it is a folder");
    bool const direct = fs::exists(status) && !fs::is_regular_file(status);
    fs::path const written = direct ? target : nameBeside(target);
    std::string reason = tryWrite(written, bytes);
    if (direct && reason.empty())
        return;
    if (!direct && fs::exists(status))
        fs::permissions(written, status.permissions(), ignored);
    if (reason.empty())
        reason = tryRename(written, target);
    if (reason.empty())
        return;
    if (!direct)
        fs::remove(written, ignored);
    fail("write", file, reason);
}

}  // namespace workbench
