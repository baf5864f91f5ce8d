#include <gtest/gtest.h>

#include <algorithm>

#include "tests/workbench/nodes/Stage.hpp"
#include "workbench/scene/layout.hpp"

using namespace Orlo;
using namespace workbench;

namespace tests {
namespace {

Rgba8 const White{255, 255, 255, 255};
Rgba8 const Black{0, 0, 0, 255};
Rgba8 const Background = opaque({0.04, 0.05, 0.07, 1.0});

class Legends : public testing::Test {
protected:
    Legends() : map(stage.furnish()) { stage.remove("FieldSlice"); }

    /// Whether anything of the colour stands in a rectangle.
    static bool has(Image const& image, PixelRect const& rect, Rgba8 color) {
        for (int y = rect.top; y < rect.bottom(); ++y)
            for (int x = rect.left; x < rect.right(); ++x)
                if (image.contains(x, y) && image.at(x, y) == color)
                    return true;
        return false;
    }

    /// Expects the colours of a map in a rectangle, as far as it lies in the
    /// picture, and its frame.
    static void expectBar(Image const& image, PixelRect const& bar, Colormap const& colors) {
        int looked = 0;
        for (int y = std::max(bar.top, 0); y < std::min(bar.bottom(), image.height()); ++y) {
            double const part = (bar.bottom() - y - 0.5) / bar.height;
            double const value = colors.getMin() + (colors.getMax() - colors.getMin()) * part;
            for (int x : {bar.left, bar.left + bar.width / 2, bar.right() - 1}) {
                ASSERT_EQ(image.at(x, y), opaque(colors.getColor(value))) << x << "," << y;
                ++looked;
            }
        }
        EXPECT_GT(looked, 0);
    }

    Stage stage;
    MapSource& map;
};

struct BarCase {
    char const* size;
    char const* position;
    char const* height;
    char const* width;
    PixelRect bar;
};

TEST_F(Legends, EveryRowIsTheColorOfTheValueAtItsMiddle) {
    BarCase const table[] = {
        {"1046x650", "0.03x0.03", "0.9", "0.05", {31, 45, 52, 585}},
        {"1046x650", "0.03x0.03", "0.899999980000002", "0.0499999980000002", {31, 45, 52, 585}},
        {"200x100", "0.03x0.03", "0.9", "0.05", {6, 7, 10, 90}},
        {"200x100", "0.5x0.5", "0.25", "0.1", {100, 25, 20, 25}},
        {"200x100", "0x0", "1", "1", {0, 0, 200, 100}},
        {"200x100", "0.1x-0.5", "2", "0.1", {20, -50, 20, 200}},
        {"100x30", "0.03x0.03", "0.9", "0.05", {3, 2, 5, 27}},
    };
    for (BarCase const& each : table) {
        stage.set("Viewer1", "size", each.size);
        stage.set("Legend", "position", each.position);
        stage.set("Legend", "height", each.height);
        stage.set("Legend", "width", each.width);
        expectBar(stage.picture(), each.bar, TellingMap(0.5));
    }
}

TEST_F(Legends, TheBarHasAFrameOfTheBorderColor) {
    stage.set("Legend", "bordercolor", "(1,0.5,0,0)");
    Image const image = stage.picture();
    Rgba8 const color = opaque({1.0, 0.5, 0.0, 0.0});
    PixelRect const bar{6, 7, 10, 90};
    for (int x = bar.left - 1; x <= bar.right(); ++x) {
        EXPECT_EQ(image.at(x, bar.top - 1), color);
        EXPECT_EQ(image.at(x, bar.bottom()), color);
    }
    for (int y = bar.top; y < bar.bottom(); ++y) {
        EXPECT_EQ(image.at(bar.left - 1, y), color);
        EXPECT_EQ(image.at(bar.right(), y), color);
    }
    EXPECT_EQ(image.at(bar.left - 2, bar.top + 10), Background);
}

TEST_F(Legends, TheDomainOfTheMapIsShownWhole) {
    map.min = -3;
    map.max = 5;
    expectBar(stage.picture(), {6, 7, 10, 90}, TellingMap(0.5, -3, 5));
}

TEST_F(Legends, LabelsStandOnTheRightWhereThereIsRoom) {
    Image const right = stage.picture();
    EXPECT_TRUE(has(right, {26, 0, 30, 100}, White));
    EXPECT_FALSE(has(right, {60, 0, 140, 100}, White));
    stage.set("Legend", "position", "0.93x0.03");
    Image const left = stage.picture();
    EXPECT_TRUE(has(left, {140, 0, 40, 100}, White));
    EXPECT_FALSE(has(left, {0, 0, 130, 100}, White));
}

TEST_F(Legends, LabelsTellTheDomain) {
    Image const before = stage.picture();
    map.max = 7;
    stage.set("map", "blue", "0.5");
    EXPECT_FALSE(stage.picture() == before);
}

/// Wherever a pixel of a label's colour stands, the pixels around it have the same
/// colour or that of the seam, so that no picture behind can swallow it.
TEST_F(Legends, LabelsCanBeReadOnEveryColour) {
    struct {
        char const* background;
        char const* border;
        Rgba8 label, seam;
    } const table[] = {{"(1,1,1,1)", "(1,1,1,1)", White, Black},
                       {"(1,1,0.9,1)", "(1,1,1,1)", White, Black},
                       {"(0,0,0,1)", "(0,0,0,1)", Black, White},
                       {"(0.1,0,0.1,1)", "(0,0,0,1)", Black, White}};
    for (auto const& each : table) {
        stage.set("Viewer1", "background", each.background);
        stage.set("Legend", "bordercolor", each.border);
        Image const image = stage.picture();
        PixelRect const labels{31, 10, 20, 80};  // to the right of the bar and its marks
        EXPECT_TRUE(has(image, labels, each.seam)) << each.background;
        for (int y = labels.top; y < labels.bottom(); ++y)
            for (int x = labels.left; x < labels.right(); ++x)
                if (image.at(x, y) == each.label) {
                    Rgba8 const beside = image.at(x + 1, y);
                    EXPECT_TRUE(beside == each.label || beside == each.seam) << x << "," << y;
                }
    }
}

TEST_F(Legends, ABarTooLowForTwoLabelsHasNone) {
    stage.set("Legend", "height", "0.17");
    Image const low = stage.picture();
    EXPECT_FALSE(has(low, {18, 0, 180, 100}, White));
    stage.set("Legend", "height", "0.18");
    EXPECT_TRUE(has(stage.picture(), {18, 0, 180, 100}, White));
}

TEST_F(Legends, WithoutAMapThereIsAnEmptyFrame) {
    stage.remove("map");
    Image const image = stage.picture();
    for (int y = 7; y < 97; ++y)
        for (int x = 6; x < 16; ++x)
            EXPECT_EQ(image.at(x, y), Background);
    EXPECT_EQ(image.at(5, 50), White);
    EXPECT_EQ(image.at(16, 50), White);
    EXPECT_FALSE(has(image, {17, 0, 183, 100}, White));
}

TEST_F(Legends, ABarWithoutAreaIsNotDrawn) {
    for (char const* width : {"0", "-1", "nan"}) {
        stage.set("Legend", "width", width);
        EXPECT_EQ(stage.picture(), Image(200, 100, Background)) << width;
    }
}

TEST_F(Legends, NumbersBeyondAllPicturesDoNoHarm) {
    for (char const* number : {"1e300", "-1e300", "inf", "-inf", "nan"}) {
        stage.set("Legend", "height", number);
        stage.set("Legend", "position", std::string(number) + "x" + number);
        EXPECT_EQ(stage.picture().width(), 200) << number;
    }
}

class Rulers : public Legends {
protected:
    Rulers() {
        stage.remove("Legend");
        stage.make("Legend/ShowRange", "ruler");
        stage.make("Create/Range100", "Range100");
        stage.connect("DefaultScene", "ruler.renderable", "ruler");
        stage.connect("ruler", "range", "Range100");
    }

    /// The line of the ruler: the first row from the top that is white from its
    /// left to its right end.
    static int lineOf(Image const& image, int left, int right) {
        for (int y = 0; y < image.height(); ++y) {
            int x = left;
            while (x <= right && image.at(x, y) == White)
                ++x;
            if (x > right)
                return y;
        }
        return -1;
    }
};

TEST_F(Rulers, TheLineSpansTheWidthAndTheMarksStandOnIt) {
    Image const image = stage.picture();
    int const line = lineOf(image, 10, 190);
    ASSERT_GT(line, 0);
    EXPECT_EQ(image.at(9, line), Black);
    EXPECT_EQ(image.at(8, line), Background);
    EXPECT_EQ(image.at(191, line), Black);
    EXPECT_EQ(image.at(192, line), Background);
    EXPECT_EQ(image.at(10, line - 8), White);
    EXPECT_EQ(image.at(190, line - 8), White);
    EXPECT_EQ(image.at(10, line - 9), Black);
    EXPECT_EQ(image.at(10, line - 10), Background);
    EXPECT_TRUE(has(image, {0, line + 1, 200, 99 - line}, White));
}

TEST_F(Rulers, LabelsTellTheRange) {
    Image const hundred = stage.picture();
    stage.set("Range100", "max", "50");
    Image const fifty = stage.picture();
    EXPECT_FALSE(fifty == hundred);
    stage.set("Range100", "mode", "ScaleOffset");
    EXPECT_EQ(stage.picture(), hundred);
}

TEST_F(Rulers, ItStandsWhereItIsPut) {
    stage.set("ruler", "position", "0.25x0.5");
    stage.set("ruler", "width", "0.5");
    stage.set("ruler", "color", "(1,1,1,0)");
    Image const image = stage.picture();
    int const line = lineOf(image, 50, 150);
    EXPECT_GT(line, 25);
    EXPECT_LT(line, 50);
    EXPECT_FALSE(has(image, {0, 50, 200, 50}, White));
}

TEST_F(Rulers, ARangeThatIsNotFiniteIsNotDrawn) {
    for (char const* number : {"inf", "-inf", "nan"}) {
        stage.set("Range100", "max", number);
        EXPECT_EQ(stage.picture(), Image(200, 100, Background)) << number;
    }
}

TEST_F(Rulers, WithoutARangeItShows0To1) {
    stage.set("Range100", "max", "1");
    Image const connected = stage.picture();
    stage.remove("Range100");
    EXPECT_EQ(stage.picture(), connected);
}

}  // namespace
}  // namespace tests
