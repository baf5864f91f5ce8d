/// The value types themselves: choices, flags, ranges, times.
#include <gtest/gtest.h>

#include "host/values/Enum.hpp"
#include "host/values/FlagList.hpp"
#include "host/values/Range.hpp"
#include "host/values/VCreationPreferences.hpp"
#include "host/values/VTime.hpp"
#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using namespace Orlo;

static_assert(std::is_base_of_v<Nucleo::StringList, VEnumSelection>);
static_assert(std::is_base_of_v<Nucleo::StrongPtr<VEnumSelection, Nucleo::StringList>, Enum>);
static_assert(std::is_base_of_v<std::map<std::string, bool>, FlagList>);
static_assert(std::is_base_of_v<Nucleo::Functor, Range>);

TEST(EmptyEnum, EqualsNoWordAndOtherEmptyOnes) {
    Enum const empty;
    EXPECT_FALSE(empty.Equal(""));
    EXPECT_EQ(empty.selected(), "");
    EXPECT_TRUE(empty == Enum());
    EXPECT_TRUE(empty == Enum(Enum::Selection(new VEnumSelection)));
    EXPECT_FALSE(empty == Enum().addCase("a"));
    EXPECT_FALSE(empty.select("a"));
}

TEST(EnumCases, AreAppendedFromEitherKindOfText) {
    Enum const words =
        Enum(Enum::Selection(new VEnumSelection)).addCase("a").addCase(std::string("b"));
    EXPECT_EQ(words->size(), 2u);
    EXPECT_EQ(words->front(), "a");
    EXPECT_EQ(words->back(), "b");
    EXPECT_TRUE(words.Equal("a")) << "the first word is the selected one";
    EXPECT_FALSE(words.Equal("b"));
}

TEST(EnumComparison, LooksAtTheSelectedWordOnly) {
    Enum const two = Enum().addCase("a").addCase("b");
    Enum const three = Enum().addCase("c").addCase("b").addCase("a");
    EXPECT_FALSE(two == three);
    EXPECT_TRUE(two == three.select("a"));
    EXPECT_TRUE(two.select("b") == three.select("b"));
}

TEST(EnumSelect, MakesAnotherListAndKnowsNoOtherWords) {
    Enum const words = Enum().addCase("a").addCase("b");
    Enum const chosen = words.select("b");
    EXPECT_NE(chosen.controlBlock(), words.controlBlock());
    EXPECT_TRUE(words.Equal("a"));
    EXPECT_TRUE(chosen.Equal("b"));
    EXPECT_FALSE(words.select("c"));
}

TEST(EnumWhoseSelectionLiesBeyondItsWords, SelectsNone) {
    for (int const index : {2, 3, 1000000, -2}) {
        Enum const words = Enum().addCase("a").addCase("b");
        words->selection = index;
        EXPECT_FALSE(words.hasSelection()) << index;
        EXPECT_EQ(words.selected(), "");
        EXPECT_FALSE(words.Equal("b"));
        EXPECT_FALSE(words.Equal(""));
        EXPECT_TRUE(words == Enum());
    }
}

TEST(FlagListFromText, SplitsAtTheSeparatorAndReadsALeadingMinusAsOff) {
    FlagList const flags("-inverse;wide", ';');
    bool known = false;
    EXPECT_FALSE(flags("inverse", known));
    EXPECT_TRUE(known) << "the flag exists and is off";
    EXPECT_TRUE(flags("wide", known));
    EXPECT_EQ(flags.size(), 2u);
    EXPECT_EQ(FlagList("-inverse", ' ').size(), 1u);
    EXPECT_TRUE(FlagList("", ' ').empty());
    EXPECT_TRUE(FlagList("  ", ' ').empty());
    EXPECT_EQ(FlagList("- wide", ' ').size(), 1u) << "a minus alone names no flag";
}

TEST(FlagListQuery, GivesTheFlagAndLeavesTheBoolAloneForAnUnknownOne) {
    FlagList const flags("on -off", ' ');
    bool known = false;
    EXPECT_FALSE(flags("missing", known));
    EXPECT_FALSE(known);
    known = true;
    EXPECT_FALSE(flags("missing", known));
    EXPECT_TRUE(known);
    EXPECT_TRUE(flags("on", known));
    EXPECT_FALSE(flags("off", known));
}

TEST(RangeAsAFunction, IsLinearFromMinimumToMaximum) {
    Range const range(2, 4);
    EXPECT_EQ(range(0), 2);
    EXPECT_EQ(range(0.5), 3);
    EXPECT_EQ(range(1), 4);
    EXPECT_EQ(range(-1), 0);
    EXPECT_EQ(Range(4, 2)(0.25), 3.5) << "the minimum may be the greater one";
    EXPECT_EQ(Range()(0.25), 0.25) << "0 to 1 at first";
    Nucleo::Functor const& function = range;
    EXPECT_EQ(function(0.5), 3) << "through the base";
}

TEST(Ranges, AreEqualIfBothEndsAre) {
    EXPECT_EQ(Range(0, 1), Range(0, 1));
    EXPECT_NE(Range(0, 1), Range(0, 2));
    EXPECT_NE(Range(0, 1), Range(2, 1));
}

TEST(TimeValue, HasItsThreeConstructors) {
    EXPECT_EQ(VTime(), VTime(0, 0, 1));
    VTime const time(3, 2, 5, 0.25, "h", "%g", "tide");
    EXPECT_EQ(time.value, 3);
    EXPECT_EQ(time.minimum, 2);
    EXPECT_EQ(time.maximum, 5);
    EXPECT_EQ(time.step, 0.25);
    EXPECT_EQ(time.unit, "h");
    EXPECT_EQ(time.format, "%g");
    EXPECT_EQ(time.remark, "tide");
    EXPECT_FALSE(time == VTime(3, 2, 5));
}

TEST(CreationPreferences, AreASetOfWords) {
    PreferencesPtr const one = new VCreationPreferences("hypsometric");
    PreferencesPtr const two = new VCreationPreferences("hypsometric", "topographic");
    EXPECT_TRUE(one->contains("hypsometric"));
    EXPECT_FALSE(one->contains("topographic"));
    EXPECT_FALSE(one->contains(""));
    EXPECT_EQ(two->words().size(), 2u);
}

TEST(CreationPreferences, CopyAnotherSetOrNothing) {
    PreferencesPtr const set = new VCreationPreferences("a", "b");
    EXPECT_EQ(VCreationPreferences(set).words(), set->words());
    EXPECT_TRUE(VCreationPreferences(PreferencesPtr()).words().empty());
}

TEST(CreationPreferences, UniteTwoSetsAndLeaveThemAlone) {
    VCreationPreferences const first("a", "b");
    VCreationPreferences const second("b", "c");
    VCreationPreferences const both(first, second);
    EXPECT_EQ(both.words(), (std::set<std::string>{"a", "b", "c"}));
    EXPECT_EQ(first.words().size(), 2u);
    EXPECT_EQ(second.words().size(), 2u);
}

}  // namespace
}  // namespace tests
