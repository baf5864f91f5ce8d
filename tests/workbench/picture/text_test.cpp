#include "workbench/picture/text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

using namespace workbench;

constexpr Rgba8 White{255, 255, 255, 255};

/// The picture as rows of '#' and '.', without empty rows at the bottom.
std::vector<std::string> rows(Image const& image) {
    std::vector<std::string> result;
    for (int y = 0; y < image.height(); ++y) {
        std::string row;
        for (int x = 0; x < image.width(); ++x)
            row += image.at(x, y) == White ? '#' : '.';
        result.push_back(row);
    }
    while (!result.empty() && result.back().find('#') == std::string::npos)
        result.pop_back();
    return result;
}

std::vector<std::string> drawn(std::string const& text, int scale) {
    Image image(std::max(1, textWidth(text, scale)), 3 * textHeight(scale));
    drawText(image, 0, 0, text, White, scale);
    return rows(image);
}

TEST(Text, LettersLookLikeLetters) {
    EXPECT_EQ(drawn("L", 1), (std::vector<std::string>{
                                 "#.....",
                                 "#.....",
                                 "#.....",
                                 "#.....",
                                 "#.....",
                                 "#.....",
                                 "####..",
                             }));
}

TEST(Text, ATwofoldScaleDoublesEveryDot) {
    std::vector<std::string> expected;
    for (std::string const& row : drawn("0.5%", 1)) {
        std::string wide;
        for (char const dot : row)
            wide += std::string(2, dot);
        expected.insert(expected.end(), 2, wide);
    }
    EXPECT_EQ(drawn("0.5%", 2), expected);
}

TEST(Text, SizesGrowWithScaleAndLength) {
    EXPECT_EQ(textHeight(1), 12);
    EXPECT_EQ(textHeight(3), 36);
    EXPECT_EQ(textWidth("", 1), 0);
    EXPECT_EQ(textWidth("LL", 1), 2 * textWidth("L", 1));
    EXPECT_EQ(textWidth("LL", 3), 3 * textWidth("LL", 1));
    EXPECT_EQ(textWidth("L\nLLL\nLL", 1), textWidth("LLL", 1)) << "the longest line counts";
}

TEST(Text, EveryPrintableCharacterStaysInItsWidth) {
    for (char c = '!'; c <= '~'; ++c) {
        std::string const text(1, c);
        Image image(40, 20);
        drawText(image, 10, 0, text, White, 1);
        std::vector<std::string> const picture = rows(image);
        ASSERT_FALSE(picture.empty()) << c;
        for (std::string const& row : picture) {
            EXPECT_EQ(row.substr(0, 10).find('#'), std::string::npos) << c;
            EXPECT_EQ(row.substr(10 + static_cast<std::size_t>(textWidth(text, 1))).find('#'),
                      std::string::npos)
                << c;
        }
    }
}

TEST(Text, WhatTheFontLacksIsAQuestionMark) {
    EXPECT_EQ(drawn("\x80\xff\t", 1), drawn("???", 1));
    EXPECT_EQ(drawn(std::string("\0\x7f", 2), 1), drawn("??", 1));
}

TEST(Text, TheSecondLineStandsBelowTheFirst) {
    std::vector<std::string> const two = drawn("L\nL", 1);
    std::vector<std::string> const one = drawn("L", 1);
    ASSERT_EQ(two.size(), one.size() + 12);
    EXPECT_TRUE(std::equal(one.begin(), one.end(), two.begin() + 12));
}

TEST(Text, WhatLiesOutsideIsLeftOut) {
    Image image(4, 4);
    drawText(image, -3, -3, "MMMM", White, 1);
    drawText(image, 1000, 1000, "MMMM", White, 1);
    drawText(image, 3, 3, std::string(100'000, 'M'), White, 3);
    EXPECT_EQ(image.at(3, 3), White);
}

}  // namespace
