/// Pictures on their way to a browser.
#include "workbench/serve/pixelRuns.hpp"

#include <gtest/gtest.h>

namespace workbench {
namespace {

constexpr Rgba8 Orange{255, 128, 0, 255};
constexpr Rgba8 Blue{0, 0, 255, 255};
constexpr char const* OrangeBytes = "\xFF\x80\0\xFF";

Image row(std::vector<Rgba8> const& pixels) {
    Image image(static_cast<int>(pixels.size()), 1);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        image.at(static_cast<int>(i), 0) = pixels[i];
    return image;
}

TEST(PixelRuns, AreANumberAndAPixelEach) {
    std::string const expected = std::string("\3\0\0\0", 4) + std::string(OrangeBytes, 4) +
                                 std::string("\2\0\0\0\0\0\xFF\xFF", 8);
    EXPECT_EQ(pixelRuns(row({Orange, Orange, Orange, Blue, Blue})), expected);
}

TEST(PixelRuns, GoOnFromRowToRowAndAbove255) {
    EXPECT_EQ(pixelRuns(Image(300, 300, Orange)),  // 90,000 is 0x15F90
              std::string("\x90\x5F\1\0", 4) + std::string(OrangeBytes, 4));
}

TEST(PixelRuns, TellPixelsApartThatDifferInOneComponent) {
    for (std::size_t i = 0; i < 4; ++i) {
        Rgba8 other = Orange;
        other[i] ^= 1;
        EXPECT_EQ(pixelRuns(row({Orange, Orange, Orange, other, other}))->size(), 16U) << i;
    }
}

TEST(PixelRuns, AreLeftOutWhereTheyAreNoShorter) {
    EXPECT_FALSE(pixelRuns(row({Orange})));
    EXPECT_FALSE(pixelRuns(row({Orange, Orange, Blue, Blue})));
    EXPECT_FALSE(pixelRuns(row({Orange, Blue, Orange, Blue, Orange})));
    EXPECT_TRUE(pixelRuns(row({Orange, Orange, Blue, Blue, Blue})));
}

}  // namespace
}  // namespace workbench
