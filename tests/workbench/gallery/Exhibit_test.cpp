#include "workbench/gallery/Exhibit.hpp"

#include <gtest/gtest.h>

namespace {

using namespace workbench;

Exhibit withKey(std::string const& key) {
    return {key, {}, {}, {}, 0, {}, {}, {}};
}

TEST(WordsFor, ServeAsNamesOfFilesEverywhere) {
    std::vector<Exhibit> exhibits;
    for (char const* const key : {"Colormaps/Glow", "Other/glow", "Other/GLOW", "A/a b",
                                  "A/a/../b<", "A/h\xc3\xb6he", "A/", "A/Top"})
        exhibits.push_back(withKey(key));
    exhibits.push_back(withKey(std::string(5000, 'x')));
    std::vector<std::string> const expected{
        "Glow", "glow-2", "GLOW-3", "a-b", "b-", "h--he", "map", "Top-2", std::string(100, 'x')};
    EXPECT_EQ(wordsFor(exhibits), expected);
}

}  // namespace
