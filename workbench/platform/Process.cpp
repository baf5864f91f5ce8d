#include "workbench/platform/Process.hpp"

#include <chrono>
#include <stdexcept>
#include <thread>

#include "workbench/common/paths.hpp"

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

namespace workbench {

namespace fs = std::filesystem;

namespace {

#if defined(_WIN32)

constexpr wchar_t const* EmptyFile = L"NUL";

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

/// The environment of the program with more entries, as the system takes it.
std::wstring environmentWith(std::vector<std::string> const& more) {
    std::wstring all;
    wchar_t* const block = GetEnvironmentStringsW();
    for (wchar_t const* text = block; *text != L'\0'; text += std::wstring_view(text).size() + 1)
        all += std::wstring(text) + L'\0';
    FreeEnvironmentStringsW(block);
    for (std::string const& entry : more)
        all += pathOf(entry).wstring() + L'\0';
    return all + L'\0';
}

std::string reasonOf(DWORD status) {
    switch (status) {
    case 0xC0000005:
        return "a wrong memory access";
    case 0xC00000FD:
        return "a stack that is full";
    case 0xC0000094:
        return "a division by zero";
    case 0xC000001D:
        return "an instruction that the processor does not know";
    default:
        return "error " + std::to_string(status) + " of the system";
    }
}

ProcessEnd waitFor(HANDLE process, double seconds) {
    constexpr DWORD FirstError = 0xC0000000;
    DWORD const limit = seconds > 0 ? static_cast<DWORD>(seconds * 1000) : INFINITE;
    ProcessEnd end;
    if (WaitForSingleObject(process, limit) == WAIT_TIMEOUT) {
        TerminateProcess(process, 1);
        WaitForSingleObject(process, INFINITE);
        end.how = ProcessEnd::TimedOut;
    }
    DWORD status = 0;
    GetExitCodeProcess(process, &status);
    end.status = static_cast<int>(status);
    if (end.how == ProcessEnd::Exited && status >= FirstError) {
        end.how = ProcessEnd::Crashed;
        end.reason = reasonOf(status);
    }
    return end;
}

#else

constexpr char const* EmptyFile = "/dev/null";

std::string reasonOf(int signal) {
    switch (signal) {
    case SIGSEGV:
    case SIGBUS:
        return "a wrong memory access";
    case SIGABRT:
        return "an abort";
    case SIGFPE:
        return "a division by zero";
    case SIGILL:
        return "an instruction that the processor does not know";
    default:
        return "signal " + std::to_string(signal);
    }
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Waits for the end of a process, and brings it about after the limit.
ProcessEnd waitFor(pid_t child, double seconds) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds Step{2};
    Clock::time_point const limit =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(
                           std::chrono::duration<double>(seconds > 0 ? seconds : 0));
    ProcessEnd end;
    int status = 0;
    while (waitpid(child, &status, seconds > 0 ? WNOHANG : 0) == 0) {
        if (Clock::now() > limit) {
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            end.how = ProcessEnd::TimedOut;
            break;
        }
        std::this_thread::sleep_for(Step);
    }
    end.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    if (end.how == ProcessEnd::Exited && WIFSIGNALED(status)) {
        end.how = ProcessEnd::Crashed;
        end.reason = reasonOf(WTERMSIG(status));
    }
    return end;
}

#endif

fs::path orEmpty(fs::path const& file) {
    return file.empty() ? fs::path(EmptyFile) : file;
}

}  // namespace

#if defined(_WIN32)

namespace {

/// Starts a program; the system's error if it cannot, else 0. A busy Wine now and then
/// ends a process before its program begins, and calls that an internal error: the next
/// try starts it.
DWORD startProcess(std::filesystem::path const& program, std::wstring const& line,
                   std::wstring& environment, STARTUPINFOW& start, PROCESS_INFORMATION& process) {
    constexpr int Tries = 3;
    DWORD failure = ERROR_INTERNAL_ERROR;
    for (int i = 0; i < Tries && failure == ERROR_INTERNAL_ERROR; ++i) {
        std::wstring own = line;  // which the call may write into
        bool const started = CreateProcessW(program.c_str(), own.data(), nullptr, nullptr, TRUE,
                                            CREATE_UNICODE_ENVIRONMENT, environment.data(), nullptr,
                                            &start, &process) != 0;
        failure = started ? 0 : GetLastError();
    }
    return failure;
}

}  // namespace

ProcessEnd runToEnd(fs::path const& program, std::vector<std::string> const& arguments,
                    ProcessStreams const& streams, ProcessOptions const& options) {
    std::wstring line = quotedArgument(program.wstring());
    for (std::string const& argument : arguments)
        line += L" " + quotedArgument(pathOf(argument).wstring());
    std::wstring environment = environmentWith(options.environment);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = openStream(orEmpty(streams.in), false);
    start.hStdOutput = openStream(orEmpty(streams.out), true);
    start.hStdError = openStream(orEmpty(streams.err), true);
    PROCESS_INFORMATION process{};
    DWORD const failure = startProcess(program, line, environment, start, process);
    for (HANDLE const handle : {start.hStdInput, start.hStdOutput, start.hStdError})
        CloseHandle(handle);
    if (failure != 0)
        throw std::runtime_error("cannot start " + textOf(program) + ", error " +
                                 std::to_string(failure));
    ProcessEnd const end = waitFor(process.hProcess, options.seconds);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return end;
}

#else

ProcessEnd runToEnd(fs::path const& program, std::vector<std::string> const& arguments,
                    ProcessStreams const& streams, ProcessOptions const& options) {
    std::vector<std::string> texts{program.string()};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<std::string> variables = options.environment;  // the first of a name counts
    for (char** text = environ; *text != nullptr; ++text)
        variables.emplace_back(*text);
    fs::path const in = orEmpty(streams.in), out = orEmpty(streams.out), err = orEmpty(streams.err);
    constexpr int write = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 0, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, out.c_str(), write, 0600);
    posix_spawn_file_actions_addopen(&files, 2, err.c_str(), write, 0600);
    pid_t child = 0;
    int const failure = posix_spawn(&child, program.c_str(), &files, nullptr,
                                    pointersTo(texts).data(), pointersTo(variables).data());
    posix_spawn_file_actions_destroy(&files);
    if (failure != 0)
        throw std::runtime_error("cannot start " + textOf(program));
    return waitFor(child, options.seconds);
}

#endif

}  // namespace workbench
