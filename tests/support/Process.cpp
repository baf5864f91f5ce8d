#include "tests/support/Process.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <stdexcept>

#include "workbench/common/paths.hpp"
#include "workbench/platform/program.hpp"

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;
#endif

namespace tests {

namespace fs = std::filesystem;
using workbench::pathOf;
using workbench::textOf;

namespace {

/// The files that stand for the three streams, so that no pipe can fill up.
struct Streams {
    fs::path in, out, err;
};

std::string readAll(fs::path const& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> lines(std::string const& text) {
    std::istringstream stream(text);
    std::vector<std::string> result;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        result.push_back(line);
    }
    return result;
}

#if defined(_WIN32)

/// One argument as the C runtime takes it apart again: quotes around it, a
/// backslash before each quote in it, and backslashes before a quote doubled.
std::wstring quotedArgument(std::wstring const& argument) {
    std::wstring result = L"\"";
    std::size_t backslashes = 0;
    for (wchar_t const c : argument) {
        if (c == L'"')
            result.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        result += c;
    }
    return result.append(backslashes, L'\\') + L"\"";
}

HANDLE openStream(fs::path const& file, bool forWriting) {
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    return CreateFileW(file.c_str(), forWriting ? GENERIC_WRITE : GENERIC_READ,
                       FILE_SHARE_READ | FILE_SHARE_WRITE, &inheritable,
                       forWriting ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

int runToEnd(fs::path const& program, std::vector<std::string> const& arguments,
             Streams const& streams) {
    std::wstring line = quotedArgument(program.wstring());
    for (std::string const& argument : arguments)
        line += L" " + quotedArgument(pathOf(argument).wstring());
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = openStream(streams.in, false);
    start.hStdOutput = openStream(streams.out, true);
    start.hStdError = openStream(streams.err, true);
    PROCESS_INFORMATION process{};
    bool const started = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0,
                                        nullptr, nullptr, &start, &process) != 0;
    DWORD const failure = started ? 0 : GetLastError();
    for (HANDLE const handle : {start.hStdInput, start.hStdOutput, start.hStdError})
        CloseHandle(handle);
    if (!started)
        throw std::runtime_error("cannot start " + textOf(program) + ", error " +
                                 std::to_string(failure));
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(status);
}

#else

int runToEnd(fs::path const& program, std::vector<std::string> const& arguments,
             Streams const& streams) {
    std::string name = program.string();
    std::vector<std::string> texts = arguments;
    std::vector<char*> pointers{name.data()};
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    constexpr int write = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 0, streams.in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, streams.out.c_str(), write, 0600);
    posix_spawn_file_actions_addopen(&files, 2, streams.err.c_str(), write, 0600);
    pid_t child = 0;
    int const failure =
        posix_spawn(&child, name.c_str(), &files, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (failure != 0)
        throw std::runtime_error("cannot start " + name);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

#endif

}  // namespace

std::vector<std::string> ProcessResult::outLines() const {
    return lines(out);
}

std::vector<std::string> ProcessResult::errLines() const {
    return lines(err);
}

ProcessResult runProcess(fs::path const& program, std::vector<std::string> const& arguments,
                         std::string const& input, Redirection const& redirection) {
    TemporaryFolder const folder;
    Streams streams{folder / "in", folder / "out", folder / "err"};
    if (!redirection.out.empty())
        streams.out = redirection.out;
    if (!redirection.err.empty())
        streams.err = redirection.err;
    if (!redirection.in.empty())
        streams.in = redirection.in;
    else
        std::ofstream(streams.in, std::ios::binary) << input;
    ProcessResult result;
    result.status = runToEnd(program, arguments, streams);
    if (redirection.out.empty())
        result.out = readAll(streams.out);
    if (redirection.err.empty())
        result.err = readAll(streams.err);
    return result;
}

fs::path programBeside(std::string const& name) {
    return workbench::fileBesideProgram(workbench::programFileName(name));
}

TemporaryFolder::TemporaryFolder() {
    path_ = fs::temp_directory_path() / ("prism-test-" + std::to_string(std::random_device()()));
    if (!fs::create_directory(path_))
        throw std::runtime_error("cannot make " + textOf(path_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

fs::path TemporaryFolder::operator/(std::string const& name) const {
    return path_ / pathOf(name);
}

std::vector<std::string> TemporaryFolder::names() const {
    std::vector<std::string> result;
    for (auto const& entry : fs::directory_iterator(path_))
        result.push_back(textOf(entry.path().filename()));
    std::ranges::sort(result);
    return result;
}

}  // namespace tests
