/// The judge judged: each broken plug-in is named by the right test, and by no other.
#include <gmock/gmock.h>

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
