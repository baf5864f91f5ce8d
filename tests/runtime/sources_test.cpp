/// The sources of the host's libraries mirror the headers of the contract.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace tests {
namespace {

namespace fs = std::filesystem;

fs::path const Root(PRISM_SOURCES);

/// The names of the headers of the contract, whatever their folder.
std::set<std::string> contractHeaders() {
    std::set<std::string> names;
    for (auto const& entry : fs::recursive_directory_iterator(Root / "host"))
        if (entry.path().extension() == ".hpp")
            names.insert(entry.path().stem().string());
    return names;
}

TEST(RuntimeSources, AreNamedAfterAHeaderOfTheContractOrOneBesideThem) {
    std::set<std::string> const contract = contractHeaders();
    int sources = 0;
    for (auto const& entry : fs::recursive_directory_iterator(Root / "runtime")) {
        fs::path const& source = entry.path();
        if (source.extension() != ".cpp")
            continue;
        ++sources;
        bool const mirrors = contract.contains(source.stem().string());
        bool const own = fs::exists(fs::path(source).replace_extension(".hpp"));
        EXPECT_NE(mirrors, own) << source
                                << ": a source defines either what one header of host/ declares or "
                                   "what the header beside it declares";
    }
    EXPECT_GT(sources, 30);
}

/// What waits on an atomic inside the C++ library, which loses wake-ups on Windows:
/// barriers, latches, semaphores, and the atomics' own `wait`. What waits on a
/// condition variable has another `notify_one`.
bool waitsOnAnAtomic(std::string const& code) {
    auto const has = [&](char const* text) { return code.find(text) != std::string::npos; };
    for (char const* const type :
         {"std::barrier", "std::latch", "std::counting_semaphore", "std::binary_semaphore",
          "<barrier>", "<latch>", "<semaphore>", "atomic_wait", "atomic_notify"})
        if (has(type))
            return true;
    return !has("condition_variable") &&
           (has(".wait(") || has(".notify_one(") || has(".notify_all("));
}

/// A source without its comments.
std::string codeOf(fs::path const& source) {
    std::ifstream file(source);
    std::string code;
    for (std::string line; std::getline(file, line);)
        code += line.substr(0, line.find("//")) + "\n";
    return code;
}

TEST(Sources, WaitOnNothingThatLosesWakeUpsOnWindows) {
    EXPECT_TRUE(waitsOnAnAtomic("std::barrier together(2);"));
    EXPECT_TRUE(waitsOnAnAtomic("#include <semaphore>"));
    EXPECT_TRUE(waitsOnAnAtomic("flag.wait(false);"));
    EXPECT_FALSE(waitsOnAnAtomic("std::condition_variable change; change.wait(lock);"));
    int sources = 0;
    for (char const* const folder :
         {"benchmarks", "entry", "fuzz", "host", "prism", "runtime", "tests", "workbench"})
        for (auto const& entry : fs::recursive_directory_iterator(Root / folder)) {
            std::string const ending = entry.path().extension().string();
            if ((ending != ".cpp" && ending != ".hpp") ||
                entry.path().filename() == "sources_test.cpp")
                continue;
            ++sources;
            EXPECT_FALSE(waitsOnAnAtomic(codeOf(entry.path()))) << entry.path();
        }
    EXPECT_GT(sources, 200);
}

}  // namespace
}  // namespace tests
