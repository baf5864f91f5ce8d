/// The four entries of elevation tints.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <limits>
#include <thread>

#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/RecordingOutput.hpp"

namespace tests {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<Tessar::rgba_float_t> const Tints{
    {0.1, 0.1, 0.1, 0}, {0.2, 0, 0.3, 0},    {0.1, 0, 0.65, 0},  {0, 0, 0.85, 0},
    {0, 0.25, 0.9, 0},  {0, 0.5, 1, 0},      {0, 0.65, 1, 0},    {0, 0.85, 0.9, 0},
    {0, 1, 0.9, 0},     {0.7, 1, 1, 0},      {0.2, 0.5, 0, 0},   {0, 0.7, 0, 0},
    {0, 1, 0, 0},       {0.7, 1, 0, 0},      {1, 1, 0, 0},       {1, 0.75, 0, 0},
    {0.9, 0.5, 0, 0},   {0.6, 0.15, 0.1, 0}, {0.5, 0.5, 0.5, 0}, {0.8, 0.8, 0.9, 0},
};

std::vector<Setting> const Inverse{{"options", " inverse"}};
std::vector<Setting> const Off{{"options", " -inverse"}};

/// All tints over the values 0 to 1.
std::vector<LookupRow> allTints() {
    auto const row = [](std::size_t k) { return Tints[k]; };
    // 1 - value is rounded first, then the product, then the sum.
    auto const inverse = edgesOf(Tints, Inverse, [](double value) {
        double const volatile product = (1.0 - value) * 20.0;
        return product + 0.5;
    });
    return rowsOf(Tints) + inverse +
           std::vector<LookupRow>{
               {"zero is row 0", Off, 0.0, row(0)},
               {"below 0.025 is row 0", {}, 0.0249, row(0)},
               {"from 0.025 on is row 1", {}, 0.0251, row(1)},
               {"0.025 itself is row 1", {}, 0.025, row(1)},
               {"the land begins at 0.475", {}, 0.475, row(10)},
               {"the water ends at 0.475", {}, 0.4749, row(9)},
               {"a half is row 10", {}, 0.5, row(10)},
               {"from 0.925 on is row 19", {}, 0.925, row(19)},
               {"below 0.925 is row 18", {}, 0.9249, row(18)},
               {"one is 20.5, limited to row 19", {}, 1.0, row(19)},
               {"below zero is row 0", {}, -0.5, row(0)},
               {"above one is row 19", {}, 1.5, row(19)},
               {"the greatest 32-bit row is row 19", {}, 1.0e8, row(19)},
               {"no number is row 0", {}, NotANumber, row(0)},
               {"beyond 32 bits upward is row 0, not 19", {}, 1.1e8, row(0)},
               {"beyond 32 bits downward is row 0", {}, -1.1e8, row(0)},
               {"infinity is row 0", {}, Infinity, row(0)},
               {"negative infinity is row 0", {}, -Infinity, row(0)},
               {"inverse: zero is row 19", Inverse, 0.0, row(19)},
               {"inverse: one is row 0", Inverse, 1.0, row(0)},
               {"inverse: a half is row 10, not 9", Inverse, 0.5, row(10)},
               {"inverse: above one is row 0", Inverse, 2.0, row(0)},
               {"inverse: below zero is row 19", Inverse, -1.0, row(19)},
               {"inverse: no number is row 0", Inverse, NotANumber, row(0)},
               {"inverse: beyond 32 bits is row 0", Inverse, -1.1e8, row(0)},
               {"inverse: infinity is row 0", Inverse, Infinity, row(0)},
               {"inverse: negative infinity is row 0", Inverse, -Infinity, row(0)},
           };
}

/// Row k of the shifted instance, in the middle and near both ends of its band.
std::vector<LookupRow> shiftedBands() {
    std::vector<LookupRow> rows;
    for (std::size_t k = 0; k < Tints.size(); ++k) {
        double const low = static_cast<double>(k) / 10.0 - 1.0;
        std::string const band = "band " + std::to_string(k);
        rows.push_back({band + " begins", {}, low + 0.0001, Tints[k]});
        rows.push_back({band + " has its middle", {}, low + 0.05, Tints[k]});
        rows.push_back({band + " ends", {}, low + 0.0999, Tints[k]});
        rows.push_back({band + " inverse", Inverse, 1.0 - (low + 0.05), Tints[k]});
    }
    return rows;
}

/// The land tints over 0 to 1, the water tints over -1 to 0.
std::vector<LookupRow> landTints() {
    auto const row = [](std::size_t k) { return Tints[k]; };
    auto const edges = edgesOf(Tints, {}, [](double value) { return (value + 1.0) * 10.0; });
    auto const inverse = edgesOf(Tints, Inverse, [](double value) { return (2.0 - value) * 10.0; });
    return shiftedBands() + edges + inverse +
           std::vector<LookupRow>{
               {"inverse: 2 - value is rounded once, which shows here", Inverse,
                0.20000000000000032, row(17)},
               {"zero is row 10, the coast", Off, 0.0, row(10)},
               {"just below zero is row 9", {}, -0.001, row(9)},
               {"0.95 is row 19", {}, 0.95, row(19)},
               {"one is row 19 through the limit", {}, 1.0, row(19)},
               {"above one is row 19", {}, 1.5, row(19)},
               {"-0.5 is row 5", {}, -0.5, row(5)},
               {"-1 is row 0", {}, -1.0, row(0)},
               {"-2 is row 0", {}, -2.0, row(0)},
               {"no number is row 0", {}, NotANumber, row(0)},
               {"beyond 32 bits upward is row 0", {}, 2.2e8, row(0)},
               {"beyond 32 bits downward is row 0", {}, -2.2e8, row(0)},
               {"infinity is row 0", {}, Infinity, row(0)},
               {"negative infinity is row 0", {}, -Infinity, row(0)},
               {"inverse: zero is row 19 through the limit", Inverse, 0.0, row(19)},
               {"inverse: one is row 10", Inverse, 1.0, row(10)},
               {"inverse: two is row 0", Inverse, 2.0, row(0)},
               {"inverse: no number is row 0", Inverse, NotANumber, row(0)},
               {"inverse: beyond 32 bits is row 0", Inverse, -2.2e8, row(0)},
           };
}

HelpRow const Help{
    .shortText =
        "A colormap specifically useful for Bathymetric and topographic displays, "
        "providing  bluish colors for low values and green/yellow/brownish tones for "
        "large values. ",
    .link = "https://en.wikipedia.org/wiki/Hypsometric_tints",
    .longText =
        "A colormap specifically useful for Bathymetric and topographic displays, "
        "providing  bluish colors for low values and green/yellow/brownish tones for "
        "large values.  This color scheme is known as "
        "<A HREF=\"https://en.wikipedia.org/wiki/Hypsometric_tints\"> hypsometric "
        "tints</A>.<BR> "};

MapDescription hypsometric(std::string const& name, std::vector<std::string> const& preferences,
                           std::string const& description, std::string const& tags,
                           std::vector<LookupRow> const& lookups) {
    return {.name = name,
            .creator = {.order = 0,
                        .preferences = preferences,
                        .description = description,
                        .tags = tags,
                        .source = "prism/tinctures/Hypsometric"},
            .parameters = {{"options", "Orlo::FlagList", " -inverse", 1}},
            .size = 20,
            .cycle = {.makes = Makes::WhenParameterChanged, .change = Inverse},
            .help = Help,
            .lookups = lookups};
}

DescribedMap const bathymetricColors{hypsometric("BathymetricColors", {"hypsometric"},
                                                 "Provides a color map with hypsometric tints.",
                                                 "General;Tidewatch", allTints())};
DescribedMap const plain{hypsometric("Hypsometric", {"hypsometric"},
                                     "Provides a color map with hypsometric tints.", "General",
                                     allTints())};
DescribedMap const topoBathy{hypsometric(
    "TopoBathy", {"hypsometric"}, "Provides a color map with bathymetric and hypsometric tints",
    "General;Tidewatch", allTints())};
DescribedMap const topographic{hypsometric("Topographic", {"hypsometric", "topographic"},
                                           "Provides a color map with only hypsometric tints",
                                           "General;Tidewatch", landTints())};

// --- What the four entries have in common

class HypsometricFamily : public PluginTest {
protected:
    std::vector<std::string> const keys_{"Colormaps/BathymetricColors", "Colormaps/Hypsometric",
                                         "Colormaps/TopoBathy", "Colormaps/Topographic"};
};

TEST_F(HypsometricFamily, StartsUpright) {
    for (std::string const& key : keys_) {
        Orlo::ColormapPtr const map = update(*create(key), makePool());
        EXPECT_EQ(map->getColor(1.0), Tints[19]) << key;
    }
}

TEST_F(HypsometricFamily, WithoutAChangeBuildsNoMapYetDrawsAndAgesAgain) {
    for (std::string const& key : keys_) {
        Orlo::ObjectPtr const object = create(key);
        Orlo::PoolPtr const pool = makePool();
        RecordingOutput output(*object, pool);
        Orlo::ColormapPtr const first = update(*object, pool);
        auto const age = first->age();
        output.clear();
        forceUpdate(*object, pool);
        EXPECT_EQ(output.map().get(), first.get()) << key;
        EXPECT_EQ(output.icons(), 1u) << key;
        EXPECT_GT(first->age(), age) << key;
    }
}

TEST_F(HypsometricFamily, TakesAMissingFlagForOff) {
    for (std::string const& key : keys_) {
        Orlo::ObjectPtr const object = create(key);
        set(*object, "options", "");
        EXPECT_EQ(update(*object, makePool())->getColor(1.0), Tints[19]) << key;
    }
}

TEST_F(HypsometricFamily, GivesAlpha0AndARowOfTheTableForEveryScalar) {
    for (std::string const& key : keys_) {
        Orlo::ColormapPtr const map = update(*create(key), makePool());
        for (int i = -3000; i <= 3000; ++i) {
            Tessar::rgba_float_t const colour = map->getColor(i / 1000.0);
            EXPECT_EQ(colour.alpha(), 0.0F);
            EXPECT_NE(std::ranges::find(Tints, colour), Tints.end()) << "no interpolation";
        }
    }
}

TEST_F(HypsometricFamily, GivesTheSameColourWithinABand) {
    Orlo::ColormapPtr const map = update(*create("Colormaps/Hypsometric"), makePool());
    EXPECT_EQ(map->getColor(0.476), map->getColor(0.5));
    EXPECT_EQ(map->getColor(0.5), map->getColor(0.524));
}

TEST_F(HypsometricFamily, MakesObjectsThatBehaveAlikeByThreeEntries) {
    for (auto const& settings : {Off, Inverse}) {
        std::vector<Orlo::ColormapPtr> maps;
        for (std::size_t i = 0; i < 3; ++i) {
            Orlo::ObjectPtr const object = create(keys_[i]);
            set(*object, settings[0].name, settings[0].text);
            maps.push_back(update(*object, makePool()));
        }
        for (int i = -100; i <= 1100; ++i)
            for (Orlo::ColormapPtr const& map : maps)
                EXPECT_EQ(map->getColor(i / 1000.0), maps[0]->getColor(i / 1000.0));
    }
}

/// A published map never changes, so that readers need no lock while its object
/// is updated.
TEST_F(HypsometricFamily, AnswersReadersTheSameWhileTheirObjectIsUpdated) {
    Orlo::ObjectPtr const object = create("Colormaps/Hypsometric");
    Orlo::PoolPtr const pool = makePool();
    Orlo::ColormapPtr const map = update(*object, pool);
    std::atomic<bool> done{false};
    std::atomic<int> wrong{0};
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i)
        readers.emplace_back([&] {
            Orlo::ColormapPtr const mine = map;
            do {
                for (std::size_t k = 0; k < Tints.size(); ++k)
                    if (!(mine->getColor(static_cast<double>(k) / 20.0) == Tints[k]))
                        ++wrong;
            } while (!done);
        });
    for (int i = 0; i < 200; ++i) {
        set(*object, "options", i % 2 == 0 ? " inverse" : " -inverse");
        update(*object, pool);
    }
    done = true;
    for (std::thread& reader : readers)
        reader.join();
    EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace tests
