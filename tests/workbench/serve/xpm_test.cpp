/// Icons as pictures.
#include "workbench/serve/xpm.hpp"

#include <gtest/gtest.h>

namespace workbench {
namespace {

TEST(Xpm, IsReadPixelByPixel) {
    std::optional<Image> const image = readXpm("3 2 2 1\na c #FF8000\nb c #0000ff\naba\nbba\n");
    ASSERT_TRUE(image);
    EXPECT_EQ(image->width(), 3);
    EXPECT_EQ(image->height(), 2);
    Rgba8 const orange{255, 128, 0, 255};
    Rgba8 const blue{0, 0, 255, 255};
    std::vector<Rgba8> const expected{orange, blue, orange, blue, blue, orange};
    EXPECT_EQ(image->pixels(), expected);
}

TEST(Xpm, AnythingElseIsNoPicture) {
    struct {
        char const* rule;
        char const* text;
    } const table[] = {
        {"nothing", ""},
        {"no numbers", "a b c d\n"},
        {"two characters a key", "1 1 1 2\naa c #000000\naa\n"},
        {"no width", "0 1 1 1\na c #000000\n\n"},
        {"a width beyond reason", "2000000000 1 1 1\na c #000000\na\n"},
        {"a colour's name", "1 1 1 1\na c black\na\n"},
        {"a colour that is no number", "1 1 1 1\na c #00g000\na\n"},
        {"a sign before a colour", "1 1 1 1\na c #-00000\na\n"},
        {"a key without a colour", "1 1 1 1\na c #000000\nb\n"},
        {"a row too short", "2 1 1 1\na c #000000\na\n"},
        {"a row too few", "1 2 1 1\na c #000000\na\n"},
        {"a row too many", "1 1 1 1\na c #000000\na\na\n"},
    };
    for (auto const& each : table)
        EXPECT_FALSE(readXpm(each.text)) << each.rule;
}

}  // namespace
}  // namespace workbench
