/// Programs run as processes of their own.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace workbench {

/// The files that stand for the three streams of a process, so that no pipe can
/// fill up. An empty name is the system's empty file.
struct ProcessStreams {
    std::filesystem::path in = {};
    std::filesystem::path out = {};
    std::filesystem::path err = {};
};

struct ProcessOptions {
    double seconds = 0;                         ///< the time limit; 0: none
    std::vector<std::string> environment = {};  ///< `NAME=VALUE`, beside the program's own
};

/// How a process came to its end.
struct ProcessEnd {
    enum How {
        Exited,    ///< by itself, with the status
        Crashed,   ///< by the system, for the reason
        TimedOut,  ///< by us
    };
    How how = Exited;
    int status = 0;      ///< for one that a signal ended, 128 and its number
    std::string reason;  ///< of a crash, in words: "a wrong memory access"
};

/// Runs a program with arguments in UTF-8 to its end. Throws `std::runtime_error`
/// if it cannot be started.
ProcessEnd runToEnd(std::filesystem::path const& program, std::vector<std::string> const& arguments,
                    ProcessStreams const& streams, ProcessOptions const& options = {});

}  // namespace workbench
