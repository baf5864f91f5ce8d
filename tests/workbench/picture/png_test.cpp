#include "workbench/picture/png.hpp"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/Process.hpp"
#include "tests/workbench/picture/readPng.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"

namespace {

using workbench::Image;

/// A picture of noise: the hardest to pack.
Image noise(int width, int height) {
    std::mt19937 bits(20240322);
    Image image(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (std::uint8_t& component : image.at(x, y))
                component = static_cast<std::uint8_t>(bits());
    return image;
}

TEST(Png, PicturesComeBackAsTheyWere) {
    for (Image const& image : {Image(1, 1), Image(1, 300, {1, 2, 3, 4}), noise(300, 1),
                               noise(64, 48), Image(1046, 650, {255, 255, 255, 255})}) {
        std::optional<Image> const back = tests::readPng(workbench::encodePng(image));
        ASSERT_TRUE(back) << image.width() << "x" << image.height();
        EXPECT_TRUE(*back == image) << image.width() << "x" << image.height();
    }
}

TEST(Png, TheSamePictureGivesTheSameBytes) {
    EXPECT_EQ(workbench::encodePng(noise(20, 20)), workbench::encodePng(noise(20, 20)));
}

TEST(Png, AFileHoldsThePicture) {
    tests::TemporaryFolder const folder;
    workbench::writePng(folder / "noise.png", noise(20, 20));
    EXPECT_TRUE(tests::readPng(workbench::readFile(folder / "noise.png")) == noise(20, 20));
}

TEST(Png, AFileThatCannotBeWrittenIsNamed) {
    tests::TemporaryFolder const folder;
    EXPECT_THROW(workbench::writePng(folder.path(), Image(1, 1)), workbench::WorkError);
    EXPECT_EQ(folder.names(), std::vector<std::string>{});
}

}  // namespace
