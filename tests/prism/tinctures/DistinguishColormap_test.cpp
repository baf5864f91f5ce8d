/// The colours that are far apart.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "prism/tinctures/science/RecentTables.hpp"
#include "tests/prism/parameterRow.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

/// The colours at the given places of the grid.
std::vector<rgba_float_t> colors(int steps, std::vector<std::array<int, 3>> const& places) {
    double const h = 1.0 / (steps - 1);
    std::vector<rgba_float_t> picked;
    for (auto const& [i, j, k] : places)
        picked.emplace_back(i * h, j * h, k * h, 1);
    return picked;
}

std::vector<rgba_float_t> const UnderD50 = colors(30, {{0, 29, 0},
                                                       {0, 0, 29},
                                                       {29, 0, 0},
                                                       {0, 28, 29},
                                                       {29, 14, 25},
                                                       {29, 25, 14},
                                                       {0, 16, 29},
                                                       {0, 12, 1},
                                                       {18, 8, 6},
                                                       {7, 0, 12}});

std::vector<rgba_float_t> const UnderD65 = colors(30, {{0, 29, 0},
                                                       {0, 0, 29},
                                                       {29, 0, 0},
                                                       {0, 29, 29},
                                                       {29, 18, 28},
                                                       {29, 25, 12},
                                                       {0, 12, 2},
                                                       {3, 0, 12},
                                                       {0, 14, 21},
                                                       {16, 0, 6}});

rgba_float_t const Red{1, 0, 0, 1}, Green{0, 1, 0, 1}, Blue{0, 0, 1, 1}, Cyan{0, 1, 1, 1},
    Magenta{1, 0, 1, 1}, Yellow{1, 1, 0, 1}, White{1, 1, 1, 1}, Black{0, 0, 0, 1};

/// Ten colours: the nearest entry, where a half belongs to the upper one.
double nearestEntry(double value) {
    double const volatile product = value * 10.0;
    return product + 0.49999999999999994;
}

/// The whole table, each entry looked up at its centre.
std::vector<LookupRow> tableOf(std::string const& rule, std::vector<Setting> const& settings,
                               std::vector<rgba_float_t> const& table) {
    std::vector<LookupRow> rows = bandsOf(table);
    std::erase_if(rows, [](LookupRow const& row) { return !row.rule.ends_with("k/N"); });
    for (LookupRow& row : rows) {
        row.rule = rule + ": " + row.rule;
        row.settings = settings;
    }
    return rows;
}

std::vector<Setting> const Eight{{"RGB Steps", "2"}};

DescribedMap const description{{
    .name = "MaxDistinguishableColors",
    .creator = {.order = -1000,
                .preferences = {"default"},
                .description = "Colormap with neighboring colors being maximal distinct.",
                .tags = "General;Tidewatch",
                .source = "prism/tinctures/DistinguishColormap"},
    .parameters = {parameter<int>("Number of Colors", "10", 0, {{"min", "1"}, {"max", "1000"}}),
                   parameter<int>("RGB Steps", "30", 1),
                   parameter<Orlo::Enum>("Standard Illumiant", "D50{D50}{D65}", 1),
                   parameter<rgba_float_t>("Background Color 1", "(0,0,0,1)"),
                   parameter<rgba_float_t>("Background Color 2", "(0,0,0,1)")},
    .size = 10,
    .cycle = {.makes = Makes::Always,
              .dropsCache = false,
              .age = Age::Kept,
              .foreign = Foreign::Replaced,
              .change = {{"Number of Colors", "3"}}},
    .help =
        {.shortText = "Colormap with a set of colors which are distinguishable by reference to the "
                      "Lab color space, which more closely matches human color perception than RGB",
         .longText =
             " This is a colormap with a set of colors which are distinguishable by reference to "
             "the Lab color space, which more closely matches human color perception than RGB. See "
             "as matlab implementation   'Generate maximally perceptually distinct colors' by Odo "
             "Renn. Reference: <A HREF=\"https://en.wikipedia.org/wiki/Color_difference\">Generate "
             "maximally perceptually-distinct colors</A>"},
    .lookups = bandsOf(UnderD50) + edgesOf(UnderD50, {}, nearestEntry) +
               tableOf("D65", {{"Standard Illumiant", "D65"}}, UnderD65) +
               tableOf("more colours than candidates", Eight,
                       {Green, Blue, Red, Cyan, Yellow, Magenta, White, White, White, White}) +
               tableOf("black and white backgrounds",
                       {{"Number of Colors", "4"},
                        {"RGB Steps", "2"},
                        {"Background Color 1", "(0,0,0,1)"},
                        {"Background Color 2", "(1,1,1,1)"}},
                       {Blue, Red, Green, Yellow}) +
               tableOf("the illuminant can change the order",
                       {{"Number of Colors", "4"},
                        {"RGB Steps", "2"},
                        {"Standard Illumiant", "D65"},
                        {"Background Color 2", "(1,1,1,1)"}},
                       {Blue, Green, Red, Yellow}) +
               tableOf("the alpha of a background plays no part",
                       {{"Number of Colors", "4"},
                        {"RGB Steps", "2"},
                        {"Background Color 1", "(1,1,1,0)"},
                        {"Background Color 2", "(0,0,0,0.5)"}},
                       {Blue, Red, Green, Yellow}) +
               std::vector<LookupRow>{
                   {"zero", Eight, 0, Green},
                   {"just below zero rounds to zero", Eight, -0.0499999, Green},
                   {"just below half an entry rounds down", Eight, 0.049999999999999996, Green},
                   {"half an entry rounds up", Eight, 0.05, Blue},
                   {"half an entry below zero is the last", Eight, -0.05, White},
                   {"-0.5 is the last", Eight, -0.5, White},
                   {"two and a half entries round up", Eight, 0.25, Cyan},
                   {"one is the last", Eight, 1, White},
                   {"above one is the last", Eight, 1.5, White},
                   {"a great value is the last", Eight, 1e300, White},
                   {"a very negative value is the last", Eight, -1e300, White},
                   {"no number is the last", Eight, NotANumber, White},
                   {"infinity is the last", Eight, Infinity, White},
                   {"negative infinity is the last", Eight, -Infinity, White},
                   {"one colour answers inside", {{"Number of Colors", "1"}}, 0.3, Green},
                   {"one colour answers at one", {{"Number of Colors", "1"}}, 1, Green},
                   {"one colour answers below", {{"Number of Colors", "1"}}, -7, Green},
                   {"one step gives no numbers",
                    {{"RGB Steps", "1"}},
                    0.3,
                    {NotANumber, NotANumber, NotANumber, 1}},
                   {"no steps give no colours", {{"RGB Steps", "0"}}, 0.3, {0, 0, 0, 0}},
                   {"no colours", {{"Number of Colors", "0"}}, 0.3, {0, 0, 0, 0}},
               },
}};

class DistinguishColormap : public PluginTest {
protected:
    static Orlo::ColormapPtr made(std::vector<Setting> const& settings) {
        Orlo::ObjectPtr const object = create("Colormaps/MaxDistinguishableColors");
        for (Setting const& setting : settings)
            set(*object, setting.name, setting.text);
        return update(*object, makePool());
    }

    /// What a map of such parameters is refused with.
    static std::string refusal(std::vector<Setting> const& settings) {
        try {
            made(settings);
        } catch (std::length_error const& error) {
            return error.what();
        }
        return "no refusal";
    }
};

TEST_F(DistinguishColormap, AnswersTheNumberOfColoursAsItsSize) {
    for (std::string const count : {"0", "1", "7", "1000"})
        EXPECT_EQ(made({{"Number of Colors", count}, {"RGB Steps", "3"}})->getSize(),
                  std::stoi(count));
}

/// A prefix: fewer colours are the first of more.
TEST_F(DistinguishColormap, PicksOneAfterTheOther) {
    auto const few = made({{"Number of Colors", "20"}, {"RGB Steps", "7"}});
    auto const many = made({{"Number of Colors", "80"}, {"RGB Steps", "7"}});
    for (int n = 0; n < 20; ++n)
        EXPECT_EQ(few->getColor(n / 20.0), many->getColor(n / 80.0)) << n;
}

TEST_F(DistinguishColormap, PicksNoBackgroundWhileThereAreOthers) {
    auto const map = made({{"Number of Colors", "26"},
                           {"RGB Steps", "3"},
                           {"Background Color 1", "(0.5,0.5,0.5,1)"}});
    rgba_float_t const grey{0.5, 0.5, 0.5, 1};
    for (int n = 0; n < 25; ++n) {
        EXPECT_FALSE(map->getColor(n / 26.0) == grey) << n;
        EXPECT_FALSE(map->getColor(n / 26.0) == Black) << n;
    }
    EXPECT_EQ(map->getColor(1), map->getColor(24 / 26.0)) << "25 candidates for 26 colours";
}

TEST_F(DistinguishColormap, RefusesNegativeCountsAndSteps) {
    std::string const negative = "cannot create std::vector larger than max_size()";
    EXPECT_EQ(refusal({{"Number of Colors", "-1"}}), negative);
    EXPECT_EQ(refusal({{"RGB Steps", "-1"}}), negative);
    EXPECT_EQ(refusal({{"RGB Steps", "-2147483648"}}), negative);
}

TEST_F(DistinguishColormap, RefusesGridsOfMorePointsThan31BitsCount) {
    EXPECT_EQ(refusal({{"RGB Steps", "1290"}}), "no refusal");
    EXPECT_EQ(refusal({{"RGB Steps", "1291"}}), "'RGB Steps' is greater than 1290");
    EXPECT_EQ(refusal({{"RGB Steps", "2147483647"}}), "'RGB Steps' is greater than 1290");
}

TEST_F(DistinguishColormap, RefusesWhatWouldTakeTooLong) {
    EXPECT_EQ(refusal({{"RGB Steps", "1290"}, {"Number of Colors", "932"}}),
              "'Number of Colors' is greater than 931, the most of 1290 'RGB Steps'");
    EXPECT_EQ(refusal({{"RGB Steps", "127"}, {"Number of Colors", "2147483647"}}),
              "'Number of Colors' is greater than 134217728");
    EXPECT_EQ(refusal({{"RGB Steps", "127"}, {"Number of Colors", "100000000"}}),
              "'Number of Colors' is greater than 976379, the most of 127 'RGB Steps'");
}

TEST_F(DistinguishColormap, RefusesNothingThatIsQuick) {
    EXPECT_EQ(refusal({{"RGB Steps", "2"}, {"Number of Colors", "20000000"}}), "no refusal");
    EXPECT_EQ(refusal({{"RGB Steps", "257"}, {"Number of Colors", "100"}}), "no refusal");
    EXPECT_EQ(refusal({{"RGB Steps", "20"}, {"Number of Colors", "8000"}}), "no refusal");
    EXPECT_EQ(refusal({{"RGB Steps", "1290"}, {"Number of Colors", "0"}}), "no refusal");
}

TEST_F(DistinguishColormap, RefusesNothingUpToItsBounds) {
    struct {
        char const* rule;
        int count, steps;
        std::size_t picks;
    } const table[] = {{"as many colours as fill two gigabytes", 1 << 27, 0, 0},
                       {"as much work as some seconds", 250'000, 200, 250'000}};
    for (auto const& each : table) {
        prism::DistinctRequest request{each.count, each.steps, Orlo::Enum(), {}, {}};
        EXPECT_EQ(prism::picksOf(request), each.picks) << each.rule;
        ++request.count;
        EXPECT_THROW(static_cast<void>(prism::picksOf(request)), std::length_error) << each.rule;
    }
}

TEST_F(DistinguishColormap, KeepsItsMapWhenItRefuses) {
    Orlo::ObjectPtr const object = create("Colormaps/MaxDistinguishableColors");
    Orlo::PoolPtr const pool = makePool();
    Orlo::ColormapPtr const map = update(*object, pool);
    set(*object, "RGB Steps", "-1");
    EXPECT_THROW(update(*object, pool), std::length_error);
    EXPECT_EQ(mapOf(*object, pool).get(), map.get());
    set(*object, "RGB Steps", "2");
    EXPECT_NE(update(*object, pool).get(), map.get());
}

/// Slots whose parameter holds another type yield no value.
TEST_F(DistinguishColormap, TakesSlotsWithoutAValueAsBlackAndAsD65) {
    Orlo::ObjectPtr const object = create("Colormaps/MaxDistinguishableColors");
    Orlo::ParameterPtr const number = object->slot("RGB Steps")->ownParameter();
    for (std::string const name : {"Standard Illumiant", "Background Color 1"})
        object->slot(name)->connect(number, {});
    set(*object, "RGB Steps", "2");
    set(*object, "Number of Colors", "4");
    set(*object, "Background Color 2", "(1,1,1,1)");
    Orlo::ColormapPtr const map = update(*object, makePool());
    std::vector<rgba_float_t> const expected{Blue, Green, Red, Yellow};
    for (std::size_t n = 0; n < expected.size(); ++n)
        EXPECT_EQ(map->getColor(static_cast<double>(n) / 4.0), expected[n]) << n;
}

/// More requests in turn than are remembered, each one twice in a row.
TEST_F(DistinguishColormap, HasTheColoursOfItsOwnParametersWhateverWasAskedForBefore) {
    constexpr int Requests = prism::RecentTables::Places + 2;
    Orlo::ObjectPtr const object = create("Colormaps/MaxDistinguishableColors");
    Orlo::PoolPtr const pool = makePool();
    for (int i = 0; i < 3 * Requests; ++i) {
        prism::DistinctRequest const wanted{
            5, 4, Orlo::Enum().addCase("D50"), {0.125 * (i % Requests), 0, 0, 1}, Black};
        set(*object, "Number of Colors", "5");
        set(*object, "RGB Steps", "4");
        set(*object, "Background Color 1",
            Orlo::VValueTrait<rgba_float_t>::Text(wanted.background1));
        std::vector<rgba_float_t> const expected = prism::distinctColors(wanted);
        for (int time = 0; time < 2; ++time) {
            forceUpdate(*object, pool);
            Orlo::ColormapPtr const map = mapOf(*object, pool);
            for (std::size_t n = 0; n < expected.size(); ++n)
                EXPECT_EQ(map->getColor(static_cast<double>(n) / 5.0), expected[n]) << i;
        }
    }
}

}  // namespace
}  // namespace tests
