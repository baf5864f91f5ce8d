/// Icons of colour maps.
#include <gmock/gmock.h>

#include <limits>
#include <sstream>

#include "host/object/Tincture.hpp"

namespace tests {
namespace {

using namespace Orlo;

class Plain : public Tincture {
public:
    Plain() : Tincture("plain", 0, nullptr, "colormap") {}
    bool update(VRequest&, double) override { return true; }
};

/// Black to white; without a number in the second half if `broken`.
class Grey : public Colormap {
public:
    explicit Grey(bool broken) : broken_(broken) {}
    int getMin() const override { return 0; }
    int getMax() const override { return 1; }
    int getSize() const override { return 256; }
    rgba_float_t getColor(double value) const override {
        if (broken_ && value > 0.5)
            return {std::numeric_limits<double>::quiet_NaN(), 0, 0, 0};
        return {value, value, value * 3 - 1, 1};
    }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }

private:
    bool broken_;
};

/// The icon as the tokens of an XPM: a header line, a line for each colour, the
/// pixels.
struct Icon {
    explicit Icon(std::string const& text) {
        std::istringstream lines(text);
        std::getline(lines, header);
        std::istringstream numbers(header);
        numbers >> width >> height >> count;
        std::string line;
        for (int i = 0; i < count && std::getline(lines, line); ++i)
            colours.push_back(line.substr(4));
        while (std::getline(lines, line))
            rows.push_back(line);
    }
    std::string header;
    int width = 0, height = 0, count = 0;
    std::vector<std::string> colours, rows;
};

Icon iconOf(bool broken) {
    Plain object;
    object.createIcon(new Grey(broken));
    return Icon(object.xpm_icon());
}

TEST(Icon, IsAnXpmImageWithAColourForEachColumn) {
    Icon const icon = iconOf(false);
    EXPECT_EQ(icon.header, "48 12 48 1");
    ASSERT_EQ(icon.colours.size(), 48u);
    ASSERT_EQ(icon.rows.size(), 12u);
    for (std::string const& row : icon.rows)
        EXPECT_EQ(row, icon.rows.front());
    EXPECT_EQ(icon.rows.front().size(), 48u);
}

/// All of its bytes, put together the plain way.
TEST(Icon, IsThisText) {
    Icon const icon = iconOf(false);
    std::string text = "48 12 48 1\n", row;
    for (char key = '0'; key < '0' + 48; ++key) {
        text +=
            std::string(1, key) + " c " + icon.colours[static_cast<std::size_t>(key - '0')] + "\n";
        row += key;
    }
    for (int line = 0; line < 12; ++line)
        text += row + "\n";
    Plain object;
    object.createIcon(new Grey(false));
    EXPECT_EQ(object.xpm_icon(), text);
}

TEST(Icon, RunsFromLeftToRightAndLimitsComponents) {
    Icon const icon = iconOf(false);
    EXPECT_EQ(icon.colours.front(), "#030300") << "the middle of the first column is 0.5/48";
    EXPECT_EQ(icon.colours.back(), "#FCFCFF");
}

TEST(Icon, ShowsMagentaWhereTheMapAnswersWithNoNumber) {
    Icon const icon = iconOf(true);
    EXPECT_EQ(icon.colours.back(), "#FF00FF");
    EXPECT_NE(icon.colours.front(), "#FF00FF");
}

TEST(Icon, OfNoMapIsEmptyAndCounts) {
    Plain object;
    EXPECT_EQ(object.iconCount(), 0u);
    object.createIcon(new Grey(false));
    object.createIcon(nullptr);
    EXPECT_EQ(object.xpm_icon(), "");
    EXPECT_EQ(object.iconCount(), 2u);
}

TEST(ColourObject, HasItsOutputUnderTheNameGiven) {
    Plain const object;
    ASSERT_TRUE(object.slot("colormap"));
    EXPECT_FALSE(object.slot("colormap")->isInput());
    EXPECT_EQ(object.output()->localName(), "colormap");
    EXPECT_EQ(object.gimp_icon(), "");
    EXPECT_EQ(object.qt_icon(), "");
}

}  // namespace
}  // namespace tests
