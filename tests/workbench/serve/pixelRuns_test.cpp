/// Pictures on their way to a browser.
#include "workbench/serve/pixelRuns.hpp"

#include <gtest/gtest.h>

namespace workbench {
namespace {

constexpr Rgba8 Orange{255, 128, 0, 255};
constexpr Rgba8 Blue{0, 0, 255, 255};

Image row(std::vector<Rgba8> const& pixels) {
    Image image(static_cast<int>(pixels.size()), 1);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        image.at(static_cast<int>(i), 0) = pixels[i];
    return image;
}

/// A number and pixels, as they are sent.
std::string sent(std::uint32_t number, std::vector<Rgba8> const& pixels) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(number >> shift & 0xFF);
    for (Rgba8 const& each : pixels)
        bytes.append(each.begin(), each.end());
    return bytes;
}

constexpr std::uint32_t AsTheyAre = 0x80000000;

TEST(PixelRuns, AreANumberAndAPixelOrANumberOfPixels) {
    struct {
        char const* rule;
        std::vector<Rgba8> pixels;
        std::string expected;
    } const table[] = {
        {"a run", {Orange, Orange, Orange}, sent(3, {Orange})},
        {"two runs",
         {Orange, Orange, Orange, Blue, Blue, Blue, Blue},
         sent(3, {Orange}) + sent(4, {Blue})},
        {"a single pixel", {Orange}, sent(AsTheyAre + 1, {Orange})},
        {"two are no run", {Orange, Orange}, sent(AsTheyAre + 2, {Orange, Orange})},
        {"no runs",
         {Orange, Blue, Orange, Orange, Blue},
         sent(AsTheyAre + 5, {Orange, Blue, Orange, Orange, Blue})},
        {"a run between others",
         {Blue, Orange, Orange, Orange, Blue, Blue},
         sent(AsTheyAre + 1, {Blue}) + sent(3, {Orange}) + sent(AsTheyAre + 2, {Blue, Blue})},
    };
    for (auto const& each : table)
        EXPECT_EQ(pixelRuns(row(each.pixels)), each.expected) << each.rule;
}

TEST(PixelRuns, GoOnFromRowToRow) {
    EXPECT_EQ(pixelRuns(Image(300, 300, Orange)), sent(90000, {Orange}));
}

TEST(PixelRuns, TellPixelsApartThatDifferInOneComponent) {
    for (std::size_t i = 0; i < 4; ++i) {
        Rgba8 other = Orange;
        other[i] ^= 1;
        EXPECT_EQ(pixelRuns(row({Orange, Orange, Orange, other, other, other})),
                  sent(3, {Orange}) + sent(3, {other}))
            << i;
    }
}

TEST(PixelRuns, AreHardlyEverLongerThanThePixels) {
    std::vector<Rgba8> pixels;
    for (int i = 0; i < 1000; ++i)
        for (int count = 0; count <= i % 4; ++count)  // one to four of each colour
            pixels.push_back(i % 2 == 0 ? Orange : Blue);
    EXPECT_LE(pixelRuns(row(pixels)).size(), pixels.size() * 4 + 8);
}

}  // namespace
}  // namespace workbench
