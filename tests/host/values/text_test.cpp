/// The text forms: tables of good and bad texts, round trips, rubbish, locales.
#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <random>

#include "host/values/VValueTrait.hpp"
#include "tests/host/values/sixTypes.hpp"

namespace tests {
namespace {

using namespace Orlo;
using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();

/// A text, what it means, and how that is written.
template <class T>
struct Good {
    std::string text;
    T value;
    std::string written;
};

template <class T>
void expectGood(std::vector<Good<T>> const& table, T const& start = T()) {
    for (auto const& [text, value, written] : table) {
        SCOPED_TRACE("\"" + text + "\"");
        T read = start;
        EXPECT_TRUE(VValueTrait<T>::setValueFromText(read, text));
        EXPECT_TRUE(read == value);
        EXPECT_EQ(VValueTrait<T>::Text(read), written);
    }
}

template <class T>
void expectBad(std::vector<std::string> const& texts, T const& start) {
    for (std::string const& text : texts) {
        SCOPED_TRACE("\"" + text + "\"");
        T value = start;
        EXPECT_FALSE(VValueTrait<T>::setValueFromText(value, text));
        EXPECT_TRUE(value == start) << "the value stays as it was";
    }
}

TEST(TextOfDouble, IsTheShortestThatReadsBack) {
    expectGood<double>({
        {"0", 0, "0"},
        {"45", 45, "45"},
        {"0.1", 0.1, "0.1"},
        {"-2.5e-06", -2.5e-6, "-2.5e-06"},
        {"1e300", 1e300, "1e+300"},
        {"1E5", 1e5, "1e+05"},
        {".5", 0.5, "0.5"},
        {"5.", 5, "5"},
        {"00012", 12, "12"},
        {"0.30000000000000004", 0.1 + 0.2, "0.30000000000000004"},
        {"4.9406564584124654e-324", 5e-324, "5e-324"},
        {"1.7976931348623157e308", std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
        {"inf", Infinity, "inf"},
        {"-inf", -Infinity, "-inf"},
        {"infinity", Infinity, "inf"},
    });
}

TEST(TextOfDouble, KeepsTheSignOfZeroAndReadsNoNumber) {
    double value = 1;
    EXPECT_TRUE(VValueTrait<double>::setValueFromText(value, "-0"));
    EXPECT_TRUE(std::signbit(value));
    EXPECT_EQ(VValueTrait<double>::Text(value), "-0");
    EXPECT_TRUE(VValueTrait<double>::setValueFromText(value, "nan"));
    EXPECT_TRUE(std::isnan(value));
    EXPECT_EQ(VValueTrait<double>::Text(value), "nan");
}

TEST(TextOfDouble, IsRefusedUnlessTheWholeTextIsANumber) {
    expectBad<double>(
        {"",       " ",      "a",    "1 ",    " 1", "1a", "1,5", "+1",  "--1", "1e",   "1e400",
         "-1e400", "1e-400", "0x10", "1.2.3", "e5", ".",  "-",   "1\n", "(1)", "1_000"},
        7.0);
    expectBad<double>({std::string("1\0", 2), std::string(1, '\0')}, 7.0);
}

TEST(TextOfInt, IsDecimal) {
    expectGood<int>({{"0", 0, "0"},
                     {"256", 256, "256"},
                     {"-1", -1, "-1"},
                     {"-0", 0, "0"},
                     {"007", 7, "7"},
                     {"2147483647", 2147483647, "2147483647"},
                     {"-2147483648", std::numeric_limits<int>::min(), "-2147483648"}});
}

TEST(TextOfInt, IsRefusedUnlessTheWholeTextIsAnIntegerThatFits) {
    expectBad<int>({"", " 1", "1 ", "+1", "1.0", "1e3", "0x1", "2147483648", "-2147483649", "--1",
                    "one", "99999999999999999999"},
                   7);
}

TEST(TextOfColour, IsFourNumbersInParentheses) {
    expectGood<rgba_float_t>({
        {"(1,0.6,0,1)", {1, 0.6, 0, 1}, "(1,0.6,0,1)"},
        {"(0.1,0.2,0.3,0.4)", {0.1, 0.2, 0.3, 0.4}, "(0.1,0.2,0.3,0.4)"},
        {"(-1,2,1e10,0)", {-1, 2, 1e10, 0}, "(-1,2,1e+10,0)"},
        {"(0.51373,0.06667,0,0)", {0.51373, 0.06667, 0, 0}, "(0.51373,0.06667,0,0)"},
    });
}

TEST(TextOfColour, IsRefusedInAnyOtherForm) {
    expectBad<rgba_float_t>({"", "1,1,1,1", "(1,1,1)", "(1,1,1,1,1)", "(1,1,1,1", "1,1,1,1)",
                             "( 1,1,1,1)", "(1, 1,1,1)", "(1,1,1,1) ", "(1;1;1;1)", "(,,,)",
                             "(1,1,1,x)", "(1e99,0,0,0)", "()", "[1,1,1,1]"},
                            {0.25, 0.5, 0.75, 1});
}

TEST(TextOfEnum, IsTheWordThenAllWordsInBraces) {
    Enum const words = Sample<Enum>::words();
    expectGood<Enum>({{"no", words, "no{no}{yes}"},
                      {"yes", words.select("yes"), "yes{no}{yes}"},
                      {"yes{no}{yes}", words.select("yes"), "yes{no}{yes}"}},
                     words);
    Enum const modes =
        Enum().addCase("Discrete").addCase("Interpolated").addCase("Smooth").select("Interpolated");
    expectGood<Enum>({{"Interpolated{Discrete}{Interpolated}{Smooth}", modes,
                       "Interpolated{Discrete}{Interpolated}{Smooth}"}});
}

TEST(TextOfEnum, IsRefusedForWordsThatTheValueDoesNotHave) {
    expectBad<Enum>(
        {"", "maybe", "No", "no ", " no", "no{no}", "no{yes}{no}", "no{no}{yes}{also}",
         "maybe{no}{yes}", "no{no}{yes", "no{no{yes}", "no}", "{no}yes", "no{no}{yes}x", "}{"},
        Sample<Enum>::words());
    expectBad<Enum>({"no", "no{}"}, Enum());
}

TEST(TextOfEnum, IsEmptyForAnEmptyOneAndLacksTheWordWhereNoneIsSelected) {
    expectGood<Enum>({{"", Enum(), ""}});
    Enum value;
    EXPECT_TRUE(VValueTrait<Enum>::setValueFromText(value, "{no}{yes}"));
    EXPECT_EQ(value.selected(), "");
    EXPECT_EQ(value->size(), 2u);
    EXPECT_EQ(VValueTrait<Enum>::Text(value), "{no}{yes}");
}

TEST(TextOfEnum, NeverChangesTheWordsThatOthersShare) {
    Enum const shared = Sample<Enum>::words();
    Enum value = shared;
    EXPECT_TRUE(VValueTrait<Enum>::setValueFromText(value, "yes"));
    EXPECT_TRUE(value.Equal("yes"));
    EXPECT_TRUE(shared.Equal("no"));
}

TEST(TextOfFlagList, IsEachFlagBehindABlankWithAMinusIfOff) {
    expectGood<FlagList>({{" -inverse", {"-inverse", ' '}, " -inverse"},
                          {"-inverse", {"-inverse", ' '}, " -inverse"},
                          {"inverse", {"inverse", ' '}, " inverse"},
                          {"b  a", {"a b", ' '}, " a b"},
                          {"", {}, ""}});
}

TEST(TextOfEnum, WhoseChosenWordIsEmptyReadsBack) {
    Enum const words = Enum().addCase("a").addCase("");
    Enum const chosen = words.select("");
    ASSERT_TRUE(chosen.Equal(""));
    EXPECT_EQ(VValueTrait<Enum>::Text(chosen), "{a}{}");
    Enum fresh, known = words;
    EXPECT_TRUE(VValueTrait<Enum>::setValueFromText(fresh, "{a}{}"));
    EXPECT_TRUE(fresh.Equal(""));
    EXPECT_TRUE(VValueTrait<Enum>::setValueFromText(known, ""));
    EXPECT_TRUE(known.Equal(""));
}

TEST(TextOfEnum, OfNoWordsIsEmptyForAListOfNone) {
    Enum value = Enum::Selection(new VEnumSelection);
    ASSERT_TRUE(value);
    EXPECT_EQ(VValueTrait<Enum>::Text(value), "");
    EXPECT_TRUE(VValueTrait<Enum>::setValueFromText(value, ""));
    EXPECT_FALSE(VValueTrait<Enum>::setValueFromText(value, "word"));
    EXPECT_TRUE(value->empty());
}

TEST(TextOfFlagList, HasTheSeparatorThatTheListWasMadeWith) {
    FlagList const flags("my flag;-other", ';');
    EXPECT_EQ(flags.separator(), ';');
    EXPECT_EQ(VValueTrait<FlagList>::Text(flags), ";my flag;-other");
    FlagList read = flags;
    EXPECT_TRUE(VValueTrait<FlagList>::setValueFromText(read, ";-my flag;other"));
    EXPECT_EQ(VValueTrait<FlagList>::Text(read), ";-my flag;other");
    EXPECT_TRUE(VValueTrait<FlagList>::setValueFromText(read, ";my flag;-other"));
    EXPECT_EQ(read, flags);
    EXPECT_FALSE(VValueTrait<FlagList>::setValueFromText(read, " my flag -other"));
    EXPECT_EQ(FlagList().separator(), ' ');
}

TEST(TextOfFlagList, ReplacesTheListAndRefusesUnknownFlags) {
    FlagList const known("-inverse wide", ' ');
    expectGood<FlagList>({{" inverse", {"inverse", ' '}, " inverse"}}, known);
    expectBad<FlagList>({"other", "inverse other", "--inverse", "-", "inverse -", "Inverse",
                         "inverse,wide", "inverse\twide"},
                        known);
}

TEST(TextOfRange, IsMinimumAndMaximum) {
    expectGood<Range>({{"0,1", Range(0, 1), "0,1"},
                       {"5,-5", Range(5, -5), "5,-5"},
                       {"0.1,1e-09", Range(0.1, 1e-9), "0.1,1e-09"},
                       {"-inf,inf", Range(-Infinity, Infinity), "-inf,inf"}});
}

TEST(TextOfRange, IsRefusedInAnyOtherForm) {
    expectBad<Range>(
        {"", "0", "0,", ",1", "0;1", "0,1,2", " 0,1", "0, 1", "0,1 ", "(0,1)", "a,b", "1e400,0"},
        Range(2, 3));
}

TEST(TextOfTime, IsTheTimeItsRangeAndTheStep) {
    VTime time;
    EXPECT_EQ(VValueTrait<VTime>::Text(time), "0[0,1]@0");
    EXPECT_TRUE(VValueTrait<VTime>::setValueFromText(time, "0[0,1]@0.1"));
    EXPECT_EQ(time.step, 0.1);
    EXPECT_EQ(VValueTrait<VTime>::Text(time), "0[0,1]@0.1");
    expectBad<VTime>({"", "0", "0[0,1]", "0[0,1]@", "0(0,1)@0.1", "0[0;1]@0.1", "0[0,1]@0.1 ",
                      "[0,1]@0.1", "0[,1]@0.1", "0[0,]@0.1", "0[0,1)@0.1"},
                     time);
}

// --- Round trips of random values

constexpr unsigned Seed = 20240322;

class Random {
public:
    std::uint64_t bits() { return engine_(); }
    std::uint64_t below(std::uint64_t limit) { return engine_() % limit; }
    /// Any bit pattern of a double but NaN.
    double number() {
        for (;;)
            if (double const value = std::bit_cast<double>(bits()); !std::isnan(value))
                return value;
    }
    float component() {
        for (;;)
            if (auto const value = std::bit_cast<float>(static_cast<std::uint32_t>(bits()));
                !std::isnan(value))
                return value;
    }
    std::string word() {
        std::string text(1 + below(8), ' ');
        for (char& c : text)
            c = static_cast<char>('a' + below(26));
        return text;
    }

private:
    std::mt19937_64 engine_{Seed};
};

template <class T>
T randomValue(Random& random);

template <>
double randomValue(Random& random) {
    return random.number();
}
template <>
int randomValue(Random& random) {
    return static_cast<int>(static_cast<std::uint32_t>(random.bits()));
}
template <>
rgba_float_t randomValue(Random& random) {
    rgba_float_t colour;
    for (std::size_t i = 0; i < colour.size(); ++i)
        colour[i] = random.component();
    return colour;
}
template <>
Enum randomValue(Random& random) {
    Enum words;
    for (std::uint64_t i = 0; i < 1 + random.below(5); ++i)
        words.addCase(random.word() + std::to_string(i));
    auto chosen = words->begin();
    std::advance(chosen, static_cast<std::ptrdiff_t>(random.below(words->size())));
    return words.select(*chosen);
}
template <>
FlagList randomValue(Random& random) {
    FlagList flags;
    for (std::uint64_t i = random.below(5); i > 0; --i)
        flags[random.word()] = random.below(2) == 0;
    return flags;
}
template <>
Range randomValue(Random& random) {
    return Range(random.number(), random.number());
}

template <class T>
class TextForm : public testing::Test {};
TYPED_TEST_SUITE(TextForm, SixTypes, SixNames);

TYPED_TEST(TextForm, ReadsBackToTheSameValueForRandomValues) {
    SCOPED_TRACE("seed " + std::to_string(Seed));
    Random random;
    for (int i = 0; i < 20000; ++i) {
        auto const value = randomValue<TypeParam>(random);
        std::string const text = VValueTrait<TypeParam>::Text(value);
        TypeParam read{};
        ASSERT_TRUE(VValueTrait<TypeParam>::setValueFromText(read, text)) << text;
        ASSERT_TRUE(read == value) << text;
        ASSERT_EQ(VValueTrait<TypeParam>::Text(read), text);
    }
}

TYPED_TEST(TextForm, RefusesItsOwnTextWithRubbishAroundIt) {
    SCOPED_TRACE("seed " + std::to_string(Seed));
    Random random;
    for (int i = 0; i < 2000; ++i) {
        std::string const good = VValueTrait<TypeParam>::Text(Sample<TypeParam>::second());
        std::string const rubbish(1 + random.below(3), "}{()[];#!\n"[random.below(10)]);
        for (std::string const& text : {rubbish + good, good + rubbish}) {
            TypeParam value = Sample<TypeParam>::first();
            ASSERT_FALSE(VValueTrait<TypeParam>::setValueFromText(value, text)) << text;
            ASSERT_TRUE(value == Sample<TypeParam>::first()) << text;
        }
    }
}

TYPED_TEST(TextForm, RefusesAMegabyteOfRubbish) {
    SCOPED_TRACE("seed " + std::to_string(Seed));
    Random random;
    for (int round = 0; round < 3; ++round) {
        std::string rubbish(1 << 20, '\0');
        for (char& c : rubbish)
            c = static_cast<char>(random.bits());
        TypeParam value = Sample<TypeParam>::first();
        EXPECT_FALSE(VValueTrait<TypeParam>::setValueFromText(value, rubbish));
        EXPECT_TRUE(value == Sample<TypeParam>::first());
    }
}

/// Numbers with a comma before the decimals and a point between thousands.
class CommaNumbers : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(TextForms, AreTheSameUnderACommaLocale) {
    std::locale const before = std::locale::global(std::locale(std::locale(), new CommaNumbers));
    for (char const* const name : {"de_DE.UTF-8", "de_DE", "German", "fr_FR.UTF-8"})
        if (std::setlocale(LC_ALL, name) != nullptr)
            break;
    double number = 0;
    EXPECT_TRUE(VValueTrait<double>::setValueFromText(number, "1234567.5"));
    EXPECT_EQ(number, 1234567.5);
    EXPECT_FALSE(VValueTrait<double>::setValueFromText(number, "1,5"));
    EXPECT_EQ(VValueTrait<double>::Text(1234567.5), "1234567.5");
    EXPECT_EQ(VValueTrait<int>::Text(1234567), "1234567");
    EXPECT_EQ(VValueTrait<Range>::Text(Range(0.5, 1.5)), "0.5,1.5");
    EXPECT_EQ(VValueTrait<rgba_float_t>::Text({0.5, 0, 0, 1}), "(0.5,0,0,1)");
    std::setlocale(LC_ALL, "C");
    std::locale::global(before);
}

}  // namespace
}  // namespace tests
