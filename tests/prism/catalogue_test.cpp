/// The catalogue against its descriptions: nothing missing, nothing left over.
#include "runtime/lattice/Catalogue.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/requiredEntries.hpp"

namespace tests {
namespace {

using Catalogue = PluginTest;

std::vector<std::string> catalogueKeys() {
    std::vector<std::string> keys;
    for (auto const& creator : Orlo::catalogue())
        keys.push_back(creator->keyname("/"));
    return keys;
}

TEST_F(Catalogue, HoldsTheRequiredEntriesInTheOrderOfTheirInitialisers) {
    std::vector<std::string> required = catalogueKeys();
    std::erase_if(required, [](std::string const& key) {
        return std::ranges::find(requiredEntries, key) == requiredEntries.end();
    });
    EXPECT_THAT(required, testing::ElementsAreArray(requiredEntries));
}

TEST_F(Catalogue, HasEveryEntryDescribedOnce) {
    std::vector<std::string> described;
    for (MapDescription const& map : describedMaps())
        described.push_back(map.key());
    EXPECT_THAT(described, testing::UnorderedElementsAreArray(catalogueKeys()));
}

/// The places of the domain that every map's lookups must visit.
std::string placeOf(double scalar) {
    if (std::isnan(scalar))
        return "no number";
    if (std::isinf(scalar))
        return scalar > 0 ? "infinity" : "negative infinity";
    if (scalar < 0)
        return "below";
    if (scalar > 1)
        return "above";
    return scalar == 0 ? "first" : scalar == 1 ? "last" : "inside";
}

class Description : public testing::TestWithParam<MapDescription> {};

TEST_P(Description, HasLookupsForEveryPlaceOfTheDomain) {
    std::set<std::string> places;
    for (LookupRow const& row : GetParam().lookups)
        places.insert(placeOf(row.scalar));
    EXPECT_THAT(places,
                testing::UnorderedElementsAre("below", "first", "inside", "last", "above",
                                              "no number", "infinity", "negative infinity"));
}

TEST_P(Description, HasLookupsThatSetEveryParameter) {
    std::set<std::string> set, wanted;
    for (LookupRow const& row : GetParam().lookups)
        for (Setting const& setting : row.settings)
            set.insert(setting.name);
    for (ParameterRow const& parameter : GetParam().parameters)
        wanted.insert(parameter.name);
    EXPECT_EQ(set, wanted);
}

INSTANTIATE_TEST_SUITE_P(Maps, Description, testing::ValuesIn(describedMaps()),
                         [](auto const& map) { return testName(map.param.name); });

}  // namespace
}  // namespace tests
