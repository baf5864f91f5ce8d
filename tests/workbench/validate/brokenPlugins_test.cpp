/// The judge judged: each broken plug-in is named by the right test, and by no other.
#include <gmock/gmock.h>

#include "tests/support/sanitizers.hpp"
#include "tests/workbench/validate/judged.hpp"

namespace tests {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;

using Against = testing::Matcher<std::map<std::string, std::string>>;

#if defined(_WIN32)
constexpr bool SeesAllocations = false;  // a library keeps its own allocator
#else
constexpr bool SeesAllocations = true;
#endif

Against named(std::string const& test, testing::Matcher<std::string> const& how) {
    return ElementsAre(Pair(test, how));
}

struct Row {
    std::string plugin;
    Against against;
    Lines options = {};
};

class BrokenPlugin : public testing::TestWithParam<Row> {};

TEST_P(BrokenPlugin, IsNamedByTheRightTestAndByNoOther) {
    Judgement const result = judged(GetParam().plugin, GetParam().options);
    EXPECT_THAT(result.against, GetParam().against);
    EXPECT_EQ(result.status, result.against.empty() ? 0 : 1);
    EXPECT_EQ(result.document["fit"], result.against.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Plugins, BrokenPlugin,
    testing::Values(
        Row{"soundPlugin", IsEmpty()},
        Row{"noExport", named("file/export", StartsWith("failed: the file exports"))},
        Row{"twoExports", named("file/one-export", StartsWith("failed: 2 exports: "))},
        // What passes through the system's loader may end the process.
        Row{"throwsAtEntry",
            named("file/loads", AnyOf(StartsWith("failed: "), StartsWith("crashed: ")))},
        Row{"throwsAtUpdate",
            named("cycle/publishes", "failed: Colormaps/Grey: it throws 'thrown at the update'")},
        Row{"leaksObject", named("cycle/objects-go", StartsWith("failed: Colormaps/Grey: an "
                                                                "object lives on"))},
        Row{"leaksMemory", named("memory/updates", StartsWith("failed: Colormaps/Grey: "))},
        Row{"danglingMap", named("cycle/map-outlives-object",
                                 AnyOf(StartsWith("failed: Colormaps/Grey: after its object"),
                                       StartsWith("crashed: ")))},
        Row{"wrongNan", named("map/same-twice", StartsWith("failed: Colormaps/Grey: asked twice, "
                                                           "the scalar nan had the colour"))},
        Row{"allocatingLookup",
            SeesAllocations
                ? named("map/allocates-nothing", StartsWith("failed: Colormaps/Grey: the lookup"))
                : Against(IsEmpty())},
        Row{"neverUnloads", named("file/unloads", StartsWith("failed: the library is still"))},
        Row{"hangs",
            named("cycle/publishes", "timed out: it did not come back within 5 seconds"),
            {"--limit", "5"}},
        Row{"callsExit", named("cycle/publishes",
                               "crashed: the process was ended with status 0 "
                               "before the test was done")}),
    [](auto const& each) { return each.param.plugin; });

// --- Each test alone, on plug-ins with an entry for each of many faults

/// Where a fault can be seen, or done.
enum class Where { Everywhere, WithoutSanitizers, OnLinux, OnLinuxWithoutSanitizers };

struct Fault {
    std::string test;
    std::string seen;
    Where where = Where::Everywhere;
    std::string plugin = {};
};

std::ostream& operator<<(std::ostream& out, Fault const& fault) {
    return out << fault.test;
}

std::vector<Fault> faultsOf(std::string const& plugin, std::vector<Fault> faults) {
    for (Fault& fault : faults)
        fault.plugin = plugin;
    return faults;
}

constexpr auto TestAsName = [](testing::TestParamInfo<Fault> const& each) {
    std::string name = each.param.test;
    for (char& c : name)
        c = c == '/' || c == '-' ? '_' : c;
    return name;
};

bool isHere(Where where) {
    bool const withoutSanitizers =
        where == Where::WithoutSanitizers || where == Where::OnLinuxWithoutSanitizers;
    bool const onLinux = where == Where::OnLinux || where == Where::OnLinuxWithoutSanitizers;
#if defined(_WIN32)
    return !onLinux;
#else
    static_cast<void>(onLinux);
    return !withoutSanitizers || !PRISM_ADDRESS_SANITIZER;
#endif
}

class ManyFaults : public testing::TestWithParam<Fault> {};

TEST_P(ManyFaults, AreEachSeenByTheirTest) {
    if (!isHere(GetParam().where))
        GTEST_SKIP() << "not to be seen, or not to be done, in this build";
    Judgement const result = judged(GetParam().plugin, {"--only", GetParam().test});
    EXPECT_THAT(result.against, named(GetParam().test, StartsWith("failed: " + GetParam().seen)));
}

INSTANTIATE_TEST_SUITE_P(
    Plugins, ManyFaults,
    testing::ValuesIn(faultsOf(
        "manyFaults",
        {Fault{"file/no-thread", "1 thread more", Where::OnLinux},
         Fault{"file/touches-nothing", "loading it has opened the file",
               Where::OnLinuxWithoutSanitizers},
         Fault{"file/quiet", ""},
         Fault{"catalogue/keys", "Colormaps/ Blank : a part of the key has blanks"},
         Fault{"catalogue/unique", "Colormaps/Twice: two entries"},
         Fault{"catalogue/creates", "Colormaps/Twice: "},
         Fault{"catalogue/wrong-keys",
               "Colormaps/Twice: the key ' Colormaps/Twice' finds an entry too"},
         Fault{"catalogue/preferences",
               "Colormaps/Unconcerned: an object made with a preference does"},
         Fault{"catalogue/texts", "Colormaps/Control: the tags"},
         Fault{"catalogue/help", "Colormaps/Fickle help: "},
         Fault{"catalogue/offers", "Colormaps/Twice: "},
         Fault{"parameters/names", "Colormaps/Unreadable: a parameter's name is no readable text"},
         Fault{"parameters/properties",
               "Colormaps/Bad advice: parameter 'level': its min 2 is above"},
         Fault{"parameters/random-settings", "Colormaps/Picky: "},
         Fault{"parameters/at-the-ends", "Colormaps/Picky: with 'level=1': it throws 'too much'"},
         Fault{"cycle/must-update", "Colormaps/Always due: "},
         Fault{"cycle/idle", "Colormaps/Always due: "},
         Fault{"cycle/deletes-all", "Colormaps/Forgetful: an object lives on when its creator"},
         Fault{"cycle/pools", "Colormaps/One for all: two pools have one map"},
         Fault{"cycle/age", "Colormaps/Never younger: "},
         Fault{"cycle/foreign-map", "Colormaps/Careless: of a map of another object",
               Where::WithoutSanitizers},
         Fault{"cycle/same-name", "Colormaps/Namesake: two objects of one name have one map"},
         Fault{"cycle/copies", "Colormaps/No copy: "},
         Fault{"map/answers", "Colormaps/Dumb: the lookup of"},
         Fault{"map/locks-nothing", "Colormaps/Locking: ", Where::OnLinuxWithoutSanitizers},
         Fault{"map/quiet", "Colormaps/Talking: "},
         Fault{"map/whole-numbers", "Colormaps/Other bytes: getColorRGB"},
         Fault{"map/facts", "Colormaps/Growing: "},
         Fault{"map/arithmetic", "Colormaps/Rounding: "},
         Fault{"memory/objects", "Colormaps/Leaky: "},
         Fault{"memory/settings", "Colormaps/Hoarding: "},
         Fault{"memory/fail-create", "Colormaps/Leaky: ", Where::OnLinux},
         Fault{"memory/fail-update", "Colormaps/Swallowing: allocation 1 fails: what passes out",
               Where::OnLinux},
         Fault{"memory/fail-next-update",
               "Colormaps/Swallowing: allocation 1 fails: ", Where::OnLinux},
         Fault{"threads/starts-none", ""}})),
    TestAsName);

INSTANTIATE_TEST_SUITE_P(
    OfValues, ManyFaults,
    testing::ValuesIn(faultsOf(
        "faultyValues",
        {Fault{"parameters/names", "Colormaps/Doubled: an object makes 2 parameters and has 1"},
         Fault{"parameters/defaults",
               "Colormaps/Bracketed: parameter 'more': the text of a value, '[one]', is not read "
               "back"},
         Fault{
             "parameters/round-trip",
             "Colormaps/Short: parameter 'more': the text of a value, 'fal', means another value"},
         Fault{"parameters/wrong-texts",
               "Colormaps/Hasty: parameter 'more': the text '' is refused, and has made 'one' ''"},
         Fault{"parameters/pools",
               "Colormaps/Shared: parameter 'more': a value set in one pool is seen in another"},
         Fault{"memory/fail-set", "Colormaps/Spilling: parameter 'more': allocation",
               Where::OnLinux}})),
    TestAsName);

INSTANTIATE_TEST_SUITE_P(
    OfThreads, ManyFaults,
    testing::ValuesIn(faultsOf(
        "faultyThreads",
        {Fault{"threads/readers", "Colormaps/Hesitant: beside readers, the scalar 0.125 had"},
         Fault{"threads/pools", "Colormaps/Scratched: the scalar 0.03125 had the colour"},
         Fault{"threads/creates", "Colormaps/Jealous: it throws 'another one is being made'"},
         Fault{"threads/last-holder", "Colormaps/Native: on another thread, the scalar 0 had"}})),
    TestAsName);

TEST(BrokenPlugins, AreWarnedOfWhereColoursAreNotFinite) {
    EXPECT_THAT(judged("manyFaults", {"--only", "map/finite"}).warnings,
                ElementsAre(Pair("map/finite", StartsWith("Colormaps/Infinite: the scalar 0"))));
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
