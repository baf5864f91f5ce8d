#include "workbench/validate/Judge.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <map>
#include <set>

#include "workbench/common/TemporaryFolder.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/Process.hpp"
#include "workbench/platform/program.hpp"

namespace workbench::validate {

namespace {

constexpr std::array AllKinds{Kind::Passed, Kind::Warning, Kind::Skipped,
                              Kind::Failed, Kind::Crashed, Kind::TimedOut};
constexpr std::array<char const*, 3> DepthNames{"quick", "normal", "soak"};
constexpr double SoakLimit = 12 * 3600.0;

/// Puts each test behind the one that it needs, if that is among them.
std::vector<Test> inOrder(std::vector<Test> const& tests) {
    std::vector<Test> ordered;
    std::set<std::string> done;
    std::function<void(Test const&)> const add = [&](Test const& test) {
        for (Test const& other : tests)
            if (std::ranges::count(test.needs, other.name) > 0 && !done.contains(other.name))
                add(other);
        if (done.insert(test.name).second)
            ordered.push_back(test);
    };
    std::ranges::for_each(tests, add);
    return ordered;
}

std::string withoutCarriageReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

/// The verdict in what a process wrote; of a process that wrote none, how it ended.
Verdict verdictOf(std::string const& text, ProcessEnd const& end, double limit) {
    if (end.how == ProcessEnd::TimedOut)
        return {Kind::TimedOut,
                "it did not come back within " + std::to_string(std::lround(limit)) + " seconds"};
    std::string const line = text.substr(0, text.find('\n'));
    auto const kind =
        std::ranges::find_if(AllKinds, [&](Kind each) { return line == nameOf(each); });
    bool const told = kind != AllKinds.end() && text.size() > line.size();
    std::string const when = told ? " behind the test, when the process ended" : "";
    if (end.how == ProcessEnd::Crashed)
        return {Kind::Crashed, "the process came to its end by " + end.reason + when};
    if (!told || end.status != 0)
        return {Kind::Crashed, "the process was ended with status " + std::to_string(end.status) +
                                   (told ? when : " before the test was done")};
    return {*kind, text.substr(line.size() + 1)};
}

/// Why a test can tell nothing, since the one that it needs did not pass; else empty.
std::string obstacle(Test const& test, std::map<std::string, Kind> const& blocked) {
    for (std::string const& need : test.needs)
        if (auto const found = blocked.find(need); found != blocked.end())
            return "it needs " + need + ", which " +
                   (found->second == Kind::Skipped ? "was " : "") +
                   std::string(nameOf(found->second));
    return {};
}

double limitOf(Test const& test, JudgeOptions const& options) {
    if (options.limit > 0)
        return options.limit;
    return options.depth == Depth::Soak ? SoakLimit : test.seconds;
}

Result run(Test const& test, JudgeOptions const& options) {
    using Clock = std::chrono::steady_clock;
    TemporaryFolder const folder;
    ProcessStreams const streams{{}, folder / "verdict", folder / "printed"};
    double const limit = limitOf(test, options);
    Clock::time_point const start = Clock::now();
    ProcessEnd const end = runToEnd(
        fileBesideProgram(programFileName("telmbench-judge")),
        {textOf(options.plugin), test.name, DepthNames.at(static_cast<std::size_t>(options.depth)),
         std::to_string(options.seed)},
        // glibc counts the freed pieces in its cache for each thread as in use.
        streams, {limit, {"GLIBC_TUNABLES=glibc.malloc.tcache_count=0"}});
    double const seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return {test, verdictOf(withoutCarriageReturns(readFile(streams.out)), end, limit),
            withoutCarriageReturns(readFile(streams.err)), seconds};
}

}  // namespace

bool isAgainst(Kind kind) {
    return kind == Kind::Failed || kind == Kind::Crashed || kind == Kind::TimedOut;
}

std::string written(Verdict const& verdict) {
    return std::string(nameOf(verdict.kind)) + "\n" + verdict.seen;
}

std::vector<Result> judge(JudgeOptions const& options,
                          std::function<void(Test const&, std::size_t count)> const& begins,
                          std::function<void(Result const&)> const& ends) {
    std::vector<Test> const tests = inOrder(options.tests);
    std::vector<Result> results;
    std::map<std::string, Kind> blocked;  // tests that others cannot build on
    for (Test const& test : tests) {
        begins(test, tests.size());
        std::string const reason = obstacle(test, blocked);
        Result const result =
            reason.empty() ? run(test, options) : Result{test, {Kind::Skipped, reason}, "", 0};
        if (!reason.empty() || isAgainst(result.verdict.kind))
            blocked[test.name] = result.verdict.kind;
        ends(result);
        results.push_back(result);
    }
    return results;
}

}  // namespace workbench::validate
