/// The judge judged: each broken plug-in is named by the right test, and by no other.
#include <gmock/gmock.h>

#include <set>

#include "tests/support/sanitizers.hpp"
#include "tests/workbench/validate/judged.hpp"
#include "workbench/validate/Test.hpp"

namespace tests {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;

/// Where a fault can be seen, or done.
enum class Where { Everywhere, WithoutSanitizers, OnLinux, OnLinuxWithoutSanitizers };

#if defined(_WIN32)
constexpr bool IsLinux = false;
#else
constexpr bool IsLinux = true;
#endif

bool isHere(Where where) {
    bool const withoutSanitizers =
        where == Where::WithoutSanitizers || where == Where::OnLinuxWithoutSanitizers;
    bool const onLinux = where == Where::OnLinux || where == Where::OnLinuxWithoutSanitizers;
    return (IsLinux || !onLinux) && !(PRISM_ADDRESS_SANITIZER && withoutSanitizers);
}

std::string asName(std::string text) {
    for (char& c : text)
        c = c == '/' || c == '-' ? '_' : c;
    return text;
}

// --- Plug-ins that break the contract in one thing

/// A plug-in, and the test that must name it.
struct Row {
    std::string plugin;
    std::string test;
    testing::Matcher<std::string> seen;
    Lines options = {};
    Where where = Where::Everywhere;

    /// The results that are expected, where the fault is not to be seen none.
    testing::Matcher<std::map<std::string, std::string>> named() const {
        if (!isHere(where))
            return IsEmpty();
        return ElementsAre(Pair(test, seen));
    }
};

std::ostream& operator<<(std::ostream& out, Row const& row) {
    return out << row.plugin;
}

constexpr auto PluginAsName = [](testing::TestParamInfo<Row> const& each) {
    return each.param.plugin;
};

/// The whole group of the test or, where processes start slowly, the test alone.
Lines around(std::string const& test) {
    return {"--only", IsLinux ? test.substr(0, test.find('/')) : test};
}

std::vector<Row> brokenPlugins() {
    return {
        {"noExport", "file/export", StartsWith("failed: the file exports")},
        {"twoExports", "file/one-export", StartsWith("failed: 2 exports: ")},
        // What passes through the system's loader may end the process.
        {"throwsAtEntry", "file/loads", AnyOf(StartsWith("failed: "), StartsWith("crashed: "))},
        {"throwsAtUpdate", "cycle/publishes",
         "failed: Colormaps/Grey: it throws 'thrown at the update'"},
        {"leaksObject", "cycle/objects-go",
         StartsWith("failed: Colormaps/Grey: an object lives on")},
        {"leaksMemory", "memory/updates", StartsWith("failed: Colormaps/Grey: ")},
        {"danglingMap", "cycle/map-outlives-object",
         AnyOf(StartsWith("failed: Colormaps/Grey: after its object"), StartsWith("crashed: "))},
        {"wrongNan", "map/same-twice",
         StartsWith("failed: Colormaps/Grey: asked twice, the scalar nan had the colour")},
        {"allocatingLookup",
         "map/allocates-nothing",
         StartsWith("failed: Colormaps/Grey: the lookup"),
         {},
         Where::OnLinux},
        {"neverUnloads", "file/unloads", StartsWith("failed: the library is still")},
        {"hangs",
         "cycle/publishes",
         "timed out: it did not come back within 10 seconds",
         {"--limit", "10"}},
        {"callsExit", "cycle/publishes",
         "crashed: the process was ended with status 0 before the test was done"},
        // These are put through the tests alone that are about such a thing.
        {"noEntries", "catalogue/entries", "failed: it brings no entry",
         around("catalogue/entries")},
        {"ownRuntime",
         "file/imports",
         "failed: it brings a C++ runtime of its own: it does not need the shared one",
         {"--only", "file/imports"}},
        {"uniqueSymbol",
         "file/unique-symbols",
         "failed: 1 unique symbol, such as 'theOnlyOne'",
         {"--only", "file/unique-symbols"},
         Where::OnLinux},
        {"wrongAnswer", "file/answer", "failed: the host answers 2, and the export gives 1",
         around("file/answer")},
        {"attachesEarly", "file/attach",
         "failed: the catalogue had 0 of 1 entry when the attach was told", around("file/attach")},
        {"detachesLate", "file/detach", "failed: of 1 entries 0 stood when the detach was told",
         around("file/detach")},
        {"loadsOnce",
         "file/loads-again",
         "failed: the catalogue has 0 entries at a later load, and had 1 at the first one",
         {"--only", "file/loads-again"}},
        {"leavesTypes", "file/leaves-nothing",
         "failed: 1 creator of value types stand after it has gone", around("file/leaves-nothing")},
        {"onlyOne", "file/second-copy",
         "failed: the second one brings 1 entry, and the first one 2", around("file/second-copy")},
        {"abortsAtEnd", "file/process-end",
         AllOf(StartsWith("crashed: "), EndsWith("behind the test, when the process ended")),
         around("file/process-end")},
        {"leaksAtLoad",
         "time/load-cycles",
         AllOf(StartsWith("failed: "), HasSubstr(" bytes more after")),
         {"--only", "time"}},
    };
}

class BrokenPlugin : public testing::TestWithParam<Row> {};

TEST_P(BrokenPlugin, IsNamedByTheRightTestAndByNoOther) {
    Judgement const result = judged(GetParam().plugin, GetParam().options);
    EXPECT_THAT(result.against, GetParam().named());
    EXPECT_EQ(result.status, result.against.empty() ? 0 : 1);
    EXPECT_EQ(result.document["fit"], result.against.empty());
}

INSTANTIATE_TEST_SUITE_P(Plugins, BrokenPlugin, testing::ValuesIn(brokenPlugins()), PluginAsName);

/// What is no fault, but may be one for some host.
std::vector<Row> oddPlugins() {
    return {
        {"manyFaults",
         "map/finite",
         StartsWith("Colormaps/Infinite: the scalar 0"),
         {"--only", "map/finite"}},
        {"strangeImport", "file/imports",
         AllOf(StartsWith("it needs '"), HasSubstr("stranger"),
               EndsWith("', which a host may not have")),
         around("file/imports")},
        {"elsewhere", "file/run-paths",
         "it looks for libraries in '/opt/elsewhere', a place of one machine",
         around("file/run-paths"), Where::OnLinux},
        {"slowLoad",
         "file/load-time",
         StartsWith("loading and unloading took "),
         {"--only", "file/load-time"}},
    };
}

class OddPlugin : public testing::TestWithParam<Row> {};

TEST_P(OddPlugin, IsWarnedOf) {
    Judgement const result = judged(GetParam().plugin, GetParam().options);
    EXPECT_THAT(result.warnings, GetParam().named());
    EXPECT_THAT(result.against, IsEmpty());
    EXPECT_EQ(result.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Plugins, OddPlugin, testing::ValuesIn(oddPlugins()), PluginAsName);

// --- Each test alone, on plug-ins with an entry for each of many faults

struct Fault {
    std::string plugin;
    std::string test;
    std::string seen;
    Where where = Where::Everywhere;
};

std::ostream& operator<<(std::ostream& out, Fault const& fault) {
    return out << fault.plugin << ", " << fault.test;
}

std::vector<Fault> faults() {
    return {
        {"manyFaults", "file/no-thread", "1 thread more", Where::OnLinux},
        {"manyFaults", "file/touches-nothing", "loading it has opened the file",
         Where::OnLinuxWithoutSanitizers},
        {"manyFaults", "file/quiet", ""},
        {"manyFaults", "catalogue/keys", "Colormaps/ Blank : a part of the key has blanks"},
        {"manyFaults", "catalogue/unique", "Colormaps/Twice: two entries"},
        {"manyFaults", "catalogue/creates", "Colormaps/Twice: "},
        {"manyFaults", "catalogue/wrong-keys",
         "Colormaps/Twice: the key ' Colormaps/Twice' finds an entry too"},
        {"manyFaults", "catalogue/preferences",
         "Colormaps/Unconcerned: an object made with a preference does"},
        {"manyFaults", "catalogue/texts", "Colormaps/Control: the tags"},
        {"manyFaults", "catalogue/help", "Colormaps/Fickle help: "},
        {"manyFaults", "catalogue/offers", "Colormaps/Twice: "},
        {"manyFaults", "parameters/names",
         "Colormaps/Unreadable: a parameter's name is no readable text"},
        {"manyFaults", "parameters/properties",
         "Colormaps/Bad advice: parameter 'level': its min 2 is above"},
        {"manyFaults", "parameters/random-settings", "Colormaps/Picky: "},
        {"manyFaults", "parameters/at-the-ends",
         "Colormaps/Picky: with 'level=1': it throws 'too much'"},
        {"manyFaults", "cycle/must-update", "Colormaps/Always due: "},
        {"manyFaults", "cycle/idle", "Colormaps/Always due: "},
        {"manyFaults", "cycle/deletes-all",
         "Colormaps/Forgetful: an object lives on when its creator"},
        {"manyFaults", "cycle/pools", "Colormaps/One for all: two pools have one map"},
        {"manyFaults", "cycle/age", "Colormaps/Never younger: "},
        {"manyFaults", "cycle/foreign-map", "Colormaps/Careless: of a map of another object",
         Where::WithoutSanitizers},
        {"manyFaults", "cycle/same-name",
         "Colormaps/Namesake: two objects of one name have one map"},
        {"manyFaults", "cycle/copies", "Colormaps/No copy: "},
        {"manyFaults", "map/answers", "Colormaps/Dumb: the lookup of"},
        {"manyFaults", "map/locks-nothing", "Colormaps/Locking: ", Where::OnLinuxWithoutSanitizers},
        {"manyFaults", "map/quiet", "Colormaps/Talking: "},
        {"manyFaults", "map/whole-numbers", "Colormaps/Other bytes: getColorRGB"},
        {"manyFaults", "map/facts", "Colormaps/Growing: "},
        {"manyFaults", "map/arithmetic", "Colormaps/Rounding: "},
        {"manyFaults", "memory/objects", "Colormaps/Leaky: "},
        {"manyFaults", "memory/settings", "Colormaps/Hoarding: "},
        {"manyFaults", "memory/fail-create", "Colormaps/Leaky: ", Where::OnLinux},
        {"manyFaults", "memory/fail-update",
         "Colormaps/Swallowing: allocation 1 fails: what passes out", Where::OnLinux},
        {"manyFaults", "memory/fail-next-update",
         "Colormaps/Swallowing: allocation 1 fails: ", Where::OnLinux},
        {"manyFaults", "threads/starts-none", "Colormaps/Threaded: an object starts a thread"},
        {"faultyValues", "parameters/names",
         "Colormaps/Doubled: an object makes 2 parameters and has 1"},
        {"faultyValues", "parameters/defaults",
         "Colormaps/Bracketed: parameter 'more': the text of a value, '[one]', is not read "
         "back"},
        {"faultyValues", "parameters/round-trip",
         "Colormaps/Short: parameter 'more': the text of a value, 'fal', means another value"},
        {"faultyValues", "parameters/wrong-texts",
         "Colormaps/Hasty: parameter 'more': the text '' is refused, and has made 'one' ''"},
        {"faultyValues", "parameters/pools",
         "Colormaps/Shared: parameter 'more': a value set in one pool is seen in another"},
        {"faultyValues", "memory/fail-set", "Colormaps/Spilling: parameter 'more': allocation",
         Where::OnLinux},
        {"faultyMemory", "memory/fail-create-pairs", "Colormaps/Relapsing maker: allocation",
         Where::OnLinux},
        {"faultyMemory", "memory/fail-update-pairs", "Colormaps/Relapsing updater: allocation",
         Where::OnLinux},
        {"faultyMemory", "memory/fail-next-update-pairs", "Colormaps/Relapsing updater: allocation",
         Where::OnLinux},
        {"faultyThreads", "threads/readers",
         "Colormaps/Hesitant: beside readers, the scalar 0.125 had"},
        {"faultyThreads", "threads/pools",
         "Colormaps/Scratched: the scalar 0.03125 had the colour"},
        {"faultyThreads", "threads/creates",
         "Colormaps/Jealous: it throws 'another one is being made'"},
        {"faultyThreads", "threads/last-holder",
         "Colormaps/Native: on another thread, the scalar 0 had"},
    };
}

class ManyFaults : public testing::TestWithParam<Fault> {};

TEST_P(ManyFaults, AreEachSeenByTheirTest) {
    if (!isHere(GetParam().where))
        GTEST_SKIP() << "not to be seen, or not to be done, in this build";
    Judgement const result = judged(GetParam().plugin, {"--only", GetParam().test});
    EXPECT_THAT(result.against,
                ElementsAre(Pair(GetParam().test, StartsWith("failed: " + GetParam().seen))));
}

INSTANTIATE_TEST_SUITE_P(Plugins, ManyFaults, testing::ValuesIn(faults()), [](auto const& each) {
    return each.param.plugin + "_" + asName(each.param.test);
});

// --- All of them together

TEST(Judge, IsSeenToFailInEachOfItsTests) {
    // A file that is no library has a test of the command; nowhere does an allocation
    // fail while the system loads.
    std::set<std::string> seen{"file/library", "memory/fail-load"};
    for (std::vector<Row> const& rows : {brokenPlugins(), oddPlugins()})
        for (Row const& row : rows)
            seen.insert(row.test);
    for (Fault const& fault : faults())
        seen.insert(fault.test);
    std::set<std::string> all;
    for (workbench::validate::Test const& test : workbench::validate::allTests())
        all.insert(test.name);
    EXPECT_EQ(seen, all);
}

class SoundPlugin : public testing::TestWithParam<std::string> {};

TEST_P(SoundPlugin, PassesWithoutAWarning) {
    Judgement const result = judged(GetParam());
    EXPECT_THAT(result.against, IsEmpty());
    EXPECT_THAT(result.warnings, IsEmpty());
    EXPECT_EQ(result.status, 0);
    EXPECT_GT(result.document["tests"].size(), 60U);
}

INSTANTIATE_TEST_SUITE_P(Plugins, SoundPlugin,
                         testing::Values("prism_tinctures", "sample_map", "soundPlugin"),
                         [](auto const& each) { return each.param; });

}  // namespace
}  // namespace tests
