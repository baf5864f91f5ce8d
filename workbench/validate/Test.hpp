/// The tests that a plug-in is put through.
#pragma once

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace workbench::validate {

/// How a test may end.
enum class Kind {
    Passed,
    Warning,   ///< nothing is wrong, but a host's maker should know
    Skipped,   ///< not to be told here, for a reason
    Failed,    ///< the plug-in does not keep the contract
    Crashed,   ///< it ended the process
    TimedOut,  ///< it did not come back
};

/// "passed", "timed out", ...
std::string_view nameOf(Kind kind);

/// How a test ended, and what it has seen or, if it passed, what it has to tell.
struct Verdict {
    Kind kind;
    std::string seen;
};

// Each ends a test by throwing a `Verdict`.
[[noreturn]] void fail(std::string const& seen);
[[noreturn]] void warn(std::string const& seen);
[[noreturn]] void skip(std::string const& reason);

/// Fails unless the condition holds.
inline void require(bool condition, std::string const& seen) {
    if (!condition)
        fail(seen);
}

/// How long a judgement may take.
enum class Depth { Quick, Normal, Soak };

/// What a test is given.
struct Trial {
    std::filesystem::path plugin;
    Depth depth = Depth::Normal;
    std::uint64_t seed = 1;
    std::mt19937_64 random{seed};
    std::string told = {};  ///< what a test that passes has to tell: counts, growth

    /// One of three numbers, by the depth.
    int times(int quick, int normal, int soak) const;
    /// A whole number from 0 to `count` - 1.
    unsigned below(unsigned count);
};

/// One question to a plug-in.
struct Test {
    std::string name;      ///< group and name: "file/export"
    std::string contract;  ///< what the contract says, as a sentence
    /// The tests without which this one cannot tell, for it would find their faults.
    std::vector<std::string> needs;
    void (*run)(Trial& trial);
    double seconds = 45;  ///< the time limit
};

// Each group, in its order.
std::vector<Test> fileTests();
std::vector<Test> catalogueTests();
std::vector<Test> parameterTests();
std::vector<Test> cycleTests();
std::vector<Test> mapTests();
std::vector<Test> memoryTests();
std::vector<Test> threadTests();
std::vector<Test> timeTests();

/// All of them. What a test needs stands before it.
std::vector<Test> allTests();

/// The tests of that name, or of that group. Throws `CallError` with the nearest
/// names if there is none.
std::vector<Test> testsOf(std::string const& name);

/// Runs a test and gives how it ended. Exceptions are failures.
Verdict runTest(Test const& test, Trial& trial);

}  // namespace workbench::validate
