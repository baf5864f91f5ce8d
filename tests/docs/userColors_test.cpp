/// The sample plug-in: what its places and ranges mean, and the network that it is for.
#include <gtest/gtest.h>

#include <limits>

#include "runtime/lattice/Catalogue.hpp"
#include "tests/support/Process.hpp"
#include "tests/support/objects.hpp"
#include "tests/workbench/picture/readPng.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/session/Session.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

rgba_float_t const Start(0, 0, 0, 1);
rgba_float_t const End(1, 1, 1, 1);
rgba_float_t const First(0.1, 0.1, 0.1, 1);
rgba_float_t const Last(0.8, 0.8, 0.9, 1);
rgba_float_t const Yellow(1, 1, 0, 1);
rgba_float_t const Red(1, 0, 0, 1);

struct Row {
    char const* rule;
    std::vector<Setting> settings;
    double value;
    rgba_float_t color;
};

std::vector<Setting> allAt(std::string const& location) {
    std::vector<Setting> settings;
    for (int i = 1; i <= 9; ++i)
        settings.push_back({"lcoation" + std::to_string(i), location});
    return settings;
}

std::vector<Row> const Rows{
    {"the first place", {}, 0, First},
    {"a place in between", {}, 0.75, Yellow},
    {"the last place", {}, 1, Last},
    {"halfway between two places", {}, 0.8125, {0.95, 0.75, 0, 1}},
    {"before the first place", {}, -1e-9, Start},
    {"behind the last place", {}, 1.0000001, End},
    {"no number", {}, NotANumber, Start},
    {"below all", {}, -Infinity, Start},
    {"above all", {}, Infinity, End},
    {"the colour before", {{"colorstart", "(1,0,0,1)"}}, -1, Red},
    {"the colour behind", {{"colorend", "(1,0,0,1)"}}, 2, Red},
    {"constant: the place before holds", {{"interpolation", "constant"}}, 0.874, Yellow},
    {"constant: the place itself", {{"interpolation", "constant"}}, 0.75, Yellow},
    {"constant: the last place", {{"interpolation", "constant"}}, 1, Last},
    {"alpha too is between",
     {{"color7", "(1,1,0,0)"}, {"color8", "(1,1,0,1)"}},
     0.8125,
     {1, 1, 0, 0.5}},
    {"places in any order", {{"lcoation1", "1"}, {"lcoation9", "0"}}, 0, Last},
    {"of two at one place the later number goes on",
     {{"interpolation", "constant"}, {"lcoation8", "0.75"}},
     0.75,
     {0.9, 0.5, 0, 1}},
    {"and the earlier one leads there",
     {{"lcoation8", "0.75"}, {"color6", "(1,1,0,1)"}},
     0.7,
     Yellow},
    {"a place beyond the advice",
     {{"lcoation9", "3"}, {"color9", "(0.9,0.5,0,1)"}},
     2,
     {0.9, 0.5, 0, 1}},
    {"a place that is no number is left out", {{"lcoation9", "nan"}}, 0.9, End},
    {"an endless place is left out", {{"lcoation1", "-inf"}}, 0.1, Start},
    {"no place at all", allAt("nan"), 0.5, Start},
    {"all at one place: there", allAt("0.5"), 0.5, Last},
    {"all at one place: behind", allAt("0.5"), 0.6, End},
    {"the data range scales the places", {{"datarange", "0,100"}}, 75, Yellow},
    {"and moves them", {{"datarange", "-1,1"}}, 0.5, Yellow},
    {"a range that falls turns the map over", {{"datarange", "100,0"}}, 25, Yellow},
    {"a range of one value: below", {{"datarange", "5,5"}}, 4, Start},
    {"a range of one value: there", {{"datarange", "5,5"}}, 5, Start},
    {"a range of one value: above", {{"datarange", "5,5"}}, 6, End},
};

class UserColors : public testing::Test {
protected:
    Orlo::ColormapPtr mapOf(std::vector<Setting> const& settings) {
        object_ = create("Colormaps/UserColors");
        for (Setting const& setting : settings)
            set(*object_, setting.name, setting.text);
        return update(*object_, makePool());
    }

    workbench::Session session_{
        {.plugins = {workbench::pluginBesideProgram(),
                     workbench::pluginBesideProgram().replace_filename("user_colors.telm")}}};
    Orlo::ObjectPtr object_;
};

TEST_F(UserColors, LooksColoursUpByTheirPlaces) {
    for (Row const& row : Rows) {
        rgba_float_t const color = mapOf(row.settings)->getColor(row.value);
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_FLOAT_EQ(color[i], row.color[i]) << row.rule << ", component " << i;
    }
}

struct Domain {
    char const* range;
    int min, max;
};

TEST_F(UserColors, HasTheWholeNumbersAroundTheDataRangeAsItsDomain) {
    for (Domain const& row :
         {Domain{"0,1", 0, 1}, Domain{"0,100", 0, 100}, Domain{"100,0", 0, 100},
          Domain{"0.2,0.7", 0, 1}, Domain{"-2.5,2.5", -3, 3}, Domain{"nan,nan", 0, 0},
          Domain{"-1e300,1e300", std::numeric_limits<int>::min(),
                 std::numeric_limits<int>::max()}}) {
        Orlo::ColormapPtr const map = mapOf({{"datarange", row.range}});
        EXPECT_EQ(map->getMin(), row.min) << row.range;
        EXPECT_EQ(map->getMax(), row.max) << row.range;
    }
}

TEST_F(UserColors, MakesANewMapForEachUpdateAndLeavesTheOldOneAsItWas) {
    Orlo::ObjectPtr const object = create("Colormaps/UserColors");
    Orlo::PoolPtr const pool = makePool();
    Orlo::ColormapPtr const old = update(*object, pool);
    set(*object, "color7", "(1,0,0,1)");
    Orlo::ColormapPtr const fresh = update(*object, pool);
    EXPECT_NE(fresh, old);
    EXPECT_EQ(old->getColor(0.75), Yellow);
    EXPECT_EQ(fresh->getColor(0.75), Red);
}

TEST_F(UserColors, IsOfItsOwnModule) {
    Orlo::WeakCreatorPtr const entry = session_.find("UserColors");
    EXPECT_EQ(session_.pluginOf(*entry).module(), "user_colors");
    EXPECT_EQ(session_.entries().back()->keyname("/"), "Colormaps/UserColors");
}

/// A colour of the legend, at a part of its height. The bar reaches from 12 % to 92 % of
/// the picture's.
struct Seen {
    double part;
    rgba_float_t color;
};

/// The network of the second plug-in, drawn: the legend has the colours at their places.
TEST(UserColorsRuler, IsCarriedOutWholeWithBothPlugins) {
    TemporaryFolder const folder;
    std::filesystem::path const beside = programBeside("telmbench").parent_path();
    std::filesystem::path const networks =
        std::filesystem::path(PRISM_SOURCE_DIR) / "prism/tinctures/examples";
    ProcessResult const result = runProcess(
        programBeside("telmbench"), {"--plugin", workbench::textOf(beside / "prism_tinctures.telm"),
                                     "--plugin", workbench::textOf(beside / "user_colors.telm"),
                                     "run", workbench::textOf(networks / "UserColorsRuler.telm"),
                                     "-o", workbench::textOf(folder / "picture.png")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errLines(), std::vector<std::string>{});
    workbench::Image const picture = readPng(workbench::readFile(folder / "picture.png")).value();
    ASSERT_EQ(picture.width(), 1046);
    ASSERT_EQ(picture.height(), 650);
    for (Seen const& seen : {Seen{0.001, First}, Seen{0.25, {0, 0, 0.85, 1}},
                             Seen{0.5, {0, 0.85, 0.9, 1}}, Seen{0.75, Yellow}, Seen{0.999, Last}}) {
        int const y = static_cast<int>(650 * (1 - 0.12 - 0.8 * seen.part));
        workbench::Rgba8 const pixel = picture.at(50, y), expected = workbench::opaque(seen.color);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(pixel[i], expected[i], 5) << "component " << i << " at " << seen.part;
    }
}

}  // namespace
}  // namespace tests
