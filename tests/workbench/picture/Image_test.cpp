#include "workbench/picture/Image.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <stdexcept>

namespace {

using workbench::Image;
using workbench::opaque;
using workbench::Rgba8;

constexpr Rgba8 Black{0, 0, 0, 255};
constexpr Rgba8 Red{255, 0, 0, 255};
constexpr float Infinity = std::numeric_limits<float>::infinity();
constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();

TEST(Opaque, LimitsRoundsAndLeavesAlphaOut) {
    struct {
        char const* rule;
        Tessar::rgba_float_t color;
        Rgba8 expected;
    } const cases[] = {
        {"the ends", {0.0F, 1.0F, 0.0F, 1.0F}, {0, 255, 0, 255}},
        {"to nearest", {0.5F, 0.25F, 0.75F, 1.0F}, {128, 64, 191, 255}},
        {"just below and above a half",
         {0.5F / 255 - 1e-6F, 0.5F / 255 + 1e-6F, 0.0F, 1.0F},
         {0, 1, 0, 255}},
        {"out of range is limited", {-3.0F, 1.5F, -0.0F, 1.0F}, {0, 255, 0, 255}},
        {"infinities are limited, NaN is 0",
         {Infinity, -Infinity, NoNumber, 1.0F},
         {255, 0, 0, 255}},
        {"alpha plays no part", {1.0F, 1.0F, 1.0F, 0.0F}, {255, 255, 255, 255}},
    };
    for (auto const& c : cases)
        EXPECT_EQ(opaque(c.color), c.expected) << c.rule;
}

TEST(ImageOfAColor, IsFilledAndCountsFromTheTop) {
    Image image(3, 2);
    EXPECT_EQ(image.width(), 3);
    EXPECT_EQ(image.height(), 2);
    EXPECT_EQ(image.at(2, 1), Black);
    image.at(1, 0) = Red;
    EXPECT_EQ(image.pixels().at(1), Red);
    EXPECT_EQ(Image(1, 1, Red).at(0, 0), Red);
}

TEST(ImageOfAColor, HasOneToSixteenThousandPixelsASide) {
    EXPECT_NO_THROW(Image(16384, 1));
    EXPECT_NO_THROW(Image(1, 16384));
    for (int const bad : {0, -1, 16385, INT_MAX, INT_MIN}) {
        EXPECT_THROW(Image(bad, 1), std::invalid_argument) << bad;
        EXPECT_THROW(Image(1, bad), std::invalid_argument) << bad;
    }
}

TEST(ImageFill, FillsWhatLiesInThePicture) {
    struct {
        char const* rule;
        int left, top, width, height;
        std::vector<int> expected;  ///< the red pixels of a 3 by 2 picture, row by row
    } const cases[] = {
        {"inside", 1, 0, 1, 1, {1}},
        {"over the right and lower edge", 2, 1, 9, 9, {5}},
        {"over the left and upper edge", -5, -5, 6, 6, {0}},
        {"up to an edge", INT_MIN, INT_MIN, INT_MAX, INT_MAX, {}},
        {"beyond all edges", -1, -1, INT_MAX, INT_MAX, {0, 1, 2, 3, 4, 5}},
        {"far outside", INT_MAX, 0, INT_MAX, 1, {}},
        {"no width", 0, 0, 0, 2, {}},
        {"negative height", 0, 1, 3, -1, {}},
    };
    for (auto const& c : cases) {
        Image image(3, 2);
        image.fill(c.left, c.top, c.width, c.height, Red);
        std::vector<int> red;
        for (std::size_t i = 0; i < image.pixels().size(); ++i)
            if (image.pixels()[i] == Red)
                red.push_back(static_cast<int>(i));
        EXPECT_EQ(red, c.expected) << c.rule;
    }
}

TEST(ImageContains, TellsInsideFromOutside) {
    Image const image(3, 2);
    EXPECT_TRUE(image.contains(0, 0));
    EXPECT_TRUE(image.contains(2, 1));
    EXPECT_FALSE(image.contains(3, 0));
    EXPECT_FALSE(image.contains(0, 2));
    EXPECT_FALSE(image.contains(-1, 0));
    EXPECT_FALSE(image.contains(0, -1));
}

}  // namespace
