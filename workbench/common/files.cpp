#include "workbench/common/files.hpp"

#include <cerrno>
#include <cstdio>
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

/// Where a symbolic link leads, so that the link survives, also one to what is
/// not there yet.
fs::path followed(fs::path file) {
    constexpr int MostLinks = 40;  // as many as Linux follows
    std::error_code error;
    if (fs::is_symlink(file, error) && fs::exists(file, error)) {
        fs::path const target = fs::canonical(file, error);
        return error ? file : target;  // a pipe has no name
    }
    for (int i = 0; i < MostLinks && fs::is_symlink(file, error); ++i) {
        fs::path const target = fs::read_symlink(file, error);
        if (error)
            break;
        file = file.parent_path() / target;  // an absolute target stands for itself
    }
    return file;
}

/// Whether somebody has taken away the right to write to a file that is there.
/// The rights alone do not tell: they say yes to everybody's superior.
bool isWriteProtected(fs::path const& file, fs::perms permissions) {
    constexpr fs::perms Writable =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((permissions & Writable) == fs::perms::none)
        return true;
    errno = 0;
    std::ofstream const opened(file, std::ios::binary | std::ios::in);
    return !opened && (errno == EACCES || errno == EPERM || errno == EROFS);
}

/// What stands at a place where a file is to be written. Fails under the other
/// name if it is a folder, write-protected, or a link that leads back to itself.
fs::file_status writableStatus(fs::path const& target, fs::path const& named) {
    std::error_code ignored;
    fs::file_status const status = fs::status(target, ignored);
    if (fs::is_directory(status))
        fail("write", named, "it is a folder");
    if (!fs::exists(status) && fs::is_symlink(target, ignored))
        fail("write", named, "it is a link that leads to no file");
    if (fs::is_regular_file(status) && isWriteProtected(target, status.permissions()))
        fail("write", named, "it is write-protected");
    return status;
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
    std::string bytes;
    char block[16384];
    while (stream.read(block, sizeof block) || stream.gcount() > 0)
        bytes.append(block, static_cast<std::size_t>(stream.gcount()));
    if (stream.bad())
        fail("read", file, lastReason());
    return bytes;
}

std::string readStandardInput() {
    std::string bytes;
    char block[4096];
    errno = 0;
    while (std::size_t const count = std::fread(block, 1, sizeof block, stdin))
        bytes.append(block, count);
    if (std::ferror(stdin) != 0)
        throw WorkError("cannot read standard input: " + lastReason());
    return bytes;
}

bool isSameFile(fs::path const& a, fs::path const& b) {
    std::error_code error;
    fs::path const first = followed(a);
    fs::path const second = followed(b);
    fs::file_status const status = fs::status(first, error);
    if (fs::exists(status))
        return fs::is_regular_file(status) && fs::equivalent(first, second, error) && !error;
    fs::path const one = fs::weakly_canonical(fs::absolute(first, error), error);
    fs::path const other = fs::weakly_canonical(fs::absolute(second, error), error);
    return !error && one == other;
}

void writeFile(fs::path const& file, std::string_view bytes) {
    std::error_code ignored;
    fs::path const target = followed(file);
    fs::file_status const status = writableStatus(target, file);
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

void makeFolder(fs::path const& folder) {
    std::error_code error, ignored;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder, ignored))
        fail("make the folder", folder,
             error ? error.default_error_condition().message() : "there is a file of that name");
}

Draft::Draft(fs::path const& file)
    : named_(file), target_(followed(file)), folder_(nameBeside(target_)) {
    fs::file_status const status = writableStatus(target_, file);
    if (fs::exists(status) && !fs::is_regular_file(status))
        fail("write", file, "it is no regular file");
    std::error_code error;
    if (fs::create_directory(folder_, error))
        fs::create_directory(scratch("").parent_path(), error);
    if (error)
        fail("write", file, error.default_error_condition().message());
}

Draft::~Draft() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

fs::path Draft::file() const {
    return folder_ / target_.filename();
}

fs::path Draft::scratch(std::string const& name) const {
    return folder_ / "scratch" / name;
}

void Draft::keep(std::vector<fs::path> const& old) {
    std::error_code ignored;
    fs::file_status const status = fs::status(target_, ignored);
    if (fs::exists(status))
        fs::permissions(file(), status.permissions(), ignored);
    std::vector<fs::path> made;
    for (fs::directory_entry const& entry : fs::directory_iterator(folder_))
        if (entry.is_regular_file() && entry.path() != file())
            made.push_back(entry.path());
    made.push_back(file());
    for (fs::path const& each : old)
        fs::remove(each, ignored);
    for (fs::path const& each : made)
        if (std::string const reason = tryRename(each, target_.parent_path() / each.filename());
            !reason.empty())
            fail("write", named_, reason);
}

}  // namespace workbench
