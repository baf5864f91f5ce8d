/// The judge: every test in a process of its own.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "workbench/validate/Test.hpp"

namespace workbench::validate {

/// What is to be judged, and how.
struct JudgeOptions {
    std::filesystem::path plugin;
    Depth depth = Depth::Normal;
    std::uint64_t seed = 1;
    std::vector<Test> tests = allTests();
    double limit = 0;  ///< seconds for a test; 0: each test's own
};

/// How a test ended.
struct Result {
    Test test;
    Verdict verdict;
    std::string printed;  ///< what its process has printed
    double seconds;
};

/// Whether a plug-in with this result is unfit.
bool isAgainst(Kind kind);

/// Runs the tests, each behind the one that it needs; those whose need did not pass are
/// skipped. `begins` and `ends` are called for each. Throws `WorkError` if the program
/// that a test runs in cannot be started.
std::vector<Result> judge(JudgeOptions const& options,
                          std::function<void(Test const&, std::size_t count)> const& begins,
                          std::function<void(Result const&)> const& ends);

/// How a verdict goes from the one process to the other.
std::string written(Verdict const& verdict);

}  // namespace workbench::validate
