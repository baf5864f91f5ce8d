/// The real program, run as a process.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/Process.hpp"
#include "workbench/common/paths.hpp"

namespace tests {

using workbench::textOf;

inline ProcessResult telmbench(std::vector<std::string> const& arguments,
                               std::string const& input = {}) {
    return runProcess(programBeside("telmbench"), arguments, input);
}

/// A file that lies beside the program, as an argument.
inline std::string fileBeside(std::string const& name) {
    return textOf(programBeside("telmbench").parent_path() / name);
}

using Lines = std::vector<std::string>;

/// Expects success, and nothing on standard error; gives the results.
inline Lines results(std::vector<std::string> const& arguments, std::string const& input = {}) {
    ProcessResult const result = telmbench(arguments, input);
    EXPECT_EQ(result.errLines(), Lines{});
    EXPECT_EQ(result.status, 0);
    return result.outLines();
}

}  // namespace tests
