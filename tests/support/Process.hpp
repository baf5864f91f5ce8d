/// Programs run as processes of their own.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "workbench/common/TemporaryFolder.hpp"

namespace tests {

/// What a process left behind.
struct ProcessResult {
    int status = -1;  ///< exit status; for a process that a signal ended, 128 and its number
    std::string out;  ///< standard output, as bytes
    std::string err;  ///< standard error, as bytes

    /// Lines without their ends, the same on every system.
    std::vector<std::string> outLines() const;
    std::vector<std::string> errLines() const;
};

/// Where the streams of a process lead instead of being caught, and what it reads
/// instead of the given input; empty: caught, and the input.
struct Redirection {
    std::filesystem::path out = {};
    std::filesystem::path in = {};
    std::filesystem::path err = {};
};

/// Runs a program with arguments in UTF-8 to its end, with the given bytes as
/// its standard input. Throws `std::runtime_error` if it cannot be started.
ProcessResult runProcess(std::filesystem::path const& program,
                         std::vector<std::string> const& arguments, std::string const& input = {},
                         Redirection const& redirection = {});

/// A program that lies beside this one, by its name without ending.
std::filesystem::path programBeside(std::string const& name);

/// A fresh folder that is gone with the object.
class TemporaryFolder : public workbench::TemporaryFolder {
public:
    TemporaryFolder();
    /// The names of what is in it, in alphabetical order.
    std::vector<std::string> names() const;
};

}  // namespace tests
