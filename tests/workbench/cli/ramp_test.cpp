#include "tests/workbench/cli/telmbench.hpp"
#include "tests/workbench/picture/readPng.hpp"
#include "workbench/common/files.hpp"

namespace {

using namespace tests;
using workbench::Image;
using workbench::Rgba8;

/// The picture that the command draws; the arguments stand behind "ramp".
Image ramp(Lines arguments) {
    TemporaryFolder const folder;
    arguments.insert(arguments.begin(), "ramp");
    arguments.insert(arguments.end(), {"-o", textOf(folder / "ramp.png")});
    EXPECT_EQ(results(arguments), Lines{});
    EXPECT_EQ(folder.names(), Lines{"ramp.png"});
    std::optional<Image> const image = readPng(workbench::readFile(folder / "ramp.png"));
    EXPECT_TRUE(image);
    return image.value_or(Image(1, 1));
}

TEST(Ramp, Has512By64PixelsUnlessToldOtherwise) {
    Image const image = ramp({"Hypsometric"});
    EXPECT_EQ(image.width(), 512);
    EXPECT_EQ(image.height(), 64);
    Image const other = ramp({"Hypsometric", "--size", "7x3"});
    EXPECT_EQ(other.width(), 7);
    EXPECT_EQ(other.height(), 3);
    EXPECT_EQ(ramp({"Hypsometric", "--size", "16384x1"}).width(), 16384);
    EXPECT_EQ(ramp({"Hypsometric", "--size", "1x16384"}).height(), 16384);
}

/// With ten columns the middles are 0.05, 0.15, ...: every other tint, from
/// row 1 on. The floats of 0.7 and 0.9 lie just below, so that 178.5 and 229.5
/// are not reached.
TEST(Ramp, EachColumnHasTheColorOfItsMiddle) {
    Image const image = ramp({"Hypsometric", "--size", "10x2"});
    Rgba8 const expected[] = {{51, 0, 77, 255},    {0, 0, 217, 255},     {0, 128, 255, 255},
                              {0, 217, 229, 255},  {178, 255, 255, 255}, {0, 178, 0, 255},
                              {178, 255, 0, 255},  {255, 191, 0, 255},   {153, 38, 26, 255},
                              {204, 204, 229, 255}};
    for (int x = 0; x < 10; ++x)
        for (int y = 0; y < 2; ++y)
            EXPECT_EQ(image.at(x, y), expected[x]) << x << ", " << y;
}

TEST(Ramp, ParametersAreSetBefore) {
    Image const plain = ramp({"Hypsometric", "--size", "2x1"});
    Image const turned = ramp({"Hypsometric", "--size", "2x1", "--set", "options=inverse"});
    EXPECT_NE(plain.at(0, 0), turned.at(0, 0));
    EXPECT_EQ(results({"lookup", "Hypsometric", "--set", "options=inverse", "0.25"}),
              Lines{"0.25 1 0.75 0 0"});
    EXPECT_EQ(turned.at(0, 0), (Rgba8{255, 191, 0, 255}));
}

TEST(Ramp, AnOldPictureIsReplaced) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "ramp.png", "old");
    EXPECT_EQ(results({"ramp", "Hypsometric", "-o", textOf(folder / "ramp.png")}), Lines{});
    EXPECT_TRUE(readPng(workbench::readFile(folder / "ramp.png")));
    EXPECT_EQ(folder.names(), Lines{"ramp.png"});
}

TEST(Ramp, AFileMayHaveAnyName) {
    TemporaryFolder const folder;
    std::string const name = "h\xc3\xb6he \xe6\xb7\xb1.png";
    EXPECT_EQ(results({"ramp", "Hypsometric", "-o", textOf(folder / name)}), Lines{});
    EXPECT_EQ(folder.names(), Lines{name});
}

}  // namespace
