#include "workbench/validate/Test.hpp"

#include <algorithm>
#include <exception>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"

namespace workbench::validate {

std::string_view nameOf(Kind kind) {
    switch (kind) {
    case Kind::Passed:
        return "passed";
    case Kind::Warning:
        return "warning";
    case Kind::Skipped:
        return "skipped";
    case Kind::Failed:
        return "failed";
    case Kind::Crashed:
        return "crashed";
    case Kind::TimedOut:
        break;
    }
    return "timed out";
}

void fail(std::string const& seen) {
    throw Verdict{Kind::Failed, seen};
}

void warn(std::string const& seen) {
    throw Verdict{Kind::Warning, seen};
}

void skip(std::string const& reason) {
    throw Verdict{Kind::Skipped, reason};
}

int Trial::times(int quick, int normal, int soak) const {
    return depth == Depth::Quick ? quick : depth == Depth::Normal ? normal : soak;
}

unsigned Trial::below(unsigned count) {
    // Not by a distribution of the library, which differs between the systems.
    return count == 0 ? 0 : static_cast<unsigned>(random() % count);
}

std::vector<Test> allTests() {
    std::vector<Test> all;
    for (auto* const group : {fileTests, catalogueTests, parameterTests, cycleTests, mapTests,
                              memoryTests, threadTests, timeTests})
        for (Test const& test : group())
            all.push_back(test);
    return all;
}

std::vector<Test> testsOf(std::string const& name) {
    std::vector<Test> found;
    std::vector<std::string> names;
    for (Test const& test : allTests()) {
        if (test.name == name || test.name.starts_with(name + "/"))
            found.push_back(test);
        names.push_back(test.name);
    }
    if (found.empty())
        throw CallError("there is no test " + inQuotes(name) +
                        suggestion(name, names, "; 'telmbench validate --list' lists them"));
    return found;
}

Verdict runTest(Test const& test, Trial& trial) {
    try {
        test.run(trial);
        return {Kind::Passed, trial.told};
    } catch (Verdict const& verdict) {
        return verdict;
    } catch (std::exception const& error) {
        return {Kind::Failed, std::string("the exception ") + inQuotes(error.what(), 300)};
    } catch (...) {
        return {Kind::Failed, "an exception that is none of the C++ library"};
    }
}

}  // namespace workbench::validate
