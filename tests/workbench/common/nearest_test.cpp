#include "workbench/common/nearest.hpp"

#include <gtest/gtest.h>

namespace {

using Words = std::vector<std::string>;

struct NearestCase {
    char const* rule;
    std::string word;
    Words words;
    Words expected;
};

NearestCase const nearestCases[] = {
    {"a wrong letter", "Glov", {"Ort", "Glow", "Muv"}, {"Glow"}},
    {"a missing letter", "Hypsometrc", {"Hypsometric", "Hypoxia"}, {"Hypsometric"}},
    {"a letter too many", "Zebramapp", {"Zebramap", "Ort"}, {"Zebramap"}},
    {"swapped neighbours count once", "Golw", {"Bold", "Glow"}, {"Glow", "Bold"}},
    {"case is no difference", "GLOW", {"Ort", "Glow"}, {"Glow"}},
    {"the beginning of a word",
     "Topo",
     {"Glow", "TopoBathy", "Topographic"},
     {"TopoBathy", "Topographic"}},
    {"a word inside", "range", {"datarange", "orange map", "size"}, {"datarange", "orange map"}},
    {"equally like ones keep their order", "Mab", {"Mac", "Mad", "Mae"}, {"Mac", "Mad", "Mae"}},
    {"the same word twice is named once", "Mab", {"Mac", "Mac"}, {"Mac"}},
    {"no more than three", "Mab", {"Mac", "Mad", "Mae", "Maf"}, {"Mac", "Mad", "Mae"}},
    {"nothing that is unlike", "Watermelon", {"Glow", "Ort"}, {}},
    {"two letters in common by chance do not make words alike", "ab", {"cd"}, {}},
    {"no word", "", {"Glow"}, {}},
    {"no words", "Glow", {}, {}},
};

TEST(Nearest, WordsByLikeness) {
    for (NearestCase const& c : nearestCases)
        EXPECT_EQ(workbench::nearest(c.word, c.words), c.expected) << c.rule;
}

TEST(Nearest, TheNumberAskedForIsTheMost) {
    EXPECT_EQ(workbench::nearest("Mab", {"Mac", "Mad", "Mae"}, 1), Words{"Mac"});
}

TEST(Nearest, AMegabyteIsComparedWithoutHarm) {
    EXPECT_EQ(workbench::nearest(std::string(1'000'000, 'x'), {"Glow", "Ort"}), Words{});
}

TEST(Suggestion, ReadsAsTheEndOfAMessage) {
    EXPECT_EQ(workbench::suggestion("Mab", {"Mac"}), "; did you mean 'Mac'?");
    EXPECT_EQ(workbench::suggestion("Mab", {"Mac", "Mad"}), "; did you mean 'Mac' or 'Mad'?");
    EXPECT_EQ(workbench::suggestion("Mab", {"Mac", "Mad", "Mae"}),
              "; did you mean 'Mac', 'Mad' or 'Mae'?");
    EXPECT_EQ(workbench::suggestion("Watermelon", {"Ort"}, "; none is near"), "; none is near");
}

TEST(Nearest, AnEndlessWordIsLikeNoOther) {
    using workbench::nearest;
    std::string const longest(256, 'x');
    EXPECT_EQ(nearest(longest + "y", {longest}), Words{});
    EXPECT_EQ(nearest(longest, {longest + "y"}), Words{});
    EXPECT_EQ(nearest(longest.substr(1), {longest}), Words{longest});
}

}  // namespace
