/// Colours, and the operations of a map that rest on its lookup.
#include "host/colormap/Colormap.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using namespace Orlo;
using namespace Tessar;

static_assert(sizeof(rgba_float_t) == 16);
static_assert(std::is_same_v<rgba_float_t, Coordinates<RGBA, float>::vector>);
static_assert(std::is_base_of_v<DomainVector<Column<4, float>, RGBA, float>, rgba_float_t>);
static_assert(std::is_base_of_v<Column<4, float>, rgba_float_t>);
static_assert(std::is_base_of_v<Matrix<4, 1, float>, rgba_float_t>);
static_assert(std::is_base_of_v<Vector<float, 4>, rgba_float_t>);
static_assert(std::is_base_of_v<FixedArray<float, 4>, rgba_float_t>);
static_assert(std::is_base_of_v<DomainFunctions<RGBA, Column<4, float>>, rgba_float_t>);
static_assert(std::is_base_of_v<RGB, RGBA>);

TEST(Colour, EqualsAnotherIfAllFourComponentsDo) {
    EXPECT_EQ(rgba_float_t(0.25, 0.5, 0.75, 1), rgba_float_t(0.25, 0.5, 0.75, 1));
    EXPECT_NE(rgba_float_t(0.25, 0.5, 0.75, 1), rgba_float_t(0.25, 0.5, 0.75, 0));
    EXPECT_NE(rgba_float_t(0.25, 0.5, 0.75, 1), rgba_float_t(0, 0.5, 0.75, 1));
}

TEST(Colour, HoldsRedGreenBlueAlphaInThisOrder) {
    rgba_float_t const colour{0.25, 0.5, 0.75, 1};
    float words[4];
    std::memcpy(words, static_cast<void const*>(&colour), sizeof words);
    EXPECT_EQ(words[0], 0.25F);
    EXPECT_EQ(words[1], 0.5F);
    EXPECT_EQ(words[2], 0.75F);
    EXPECT_EQ(words[3], 1.0F);
    EXPECT_EQ(colour.red(), 0.25F);
    EXPECT_EQ(colour.green(), 0.5F);
    EXPECT_EQ(colour.blue(), 0.75F);
    EXPECT_EQ(colour.alpha(), 1.0F);
}

TEST(Colour, StartsAsTransparentBlack) {
    EXPECT_EQ(rgba_float_t(), rgba_float_t(0, 0, 0, 0));
}

TEST(ColormapOperations, StandInTheirOrder) {
    EXPECT_EQ(virtualSlot(&Nucleo::ReferenceBase<Colormap>::finalUnction), 1u);
    EXPECT_EQ(virtualSlot(&Colormap::getMin), 4u);
    EXPECT_EQ(virtualSlot(&Colormap::getMax), 5u);
    EXPECT_EQ(virtualSlot(&Colormap::getSize), 6u);
    EXPECT_EQ(virtualSlot(&Colormap::getColorRGB), 7u);
    EXPECT_EQ(virtualSlot(&Colormap::getColorRGBA), 8u);
    EXPECT_EQ(virtualSlot(&Colormap::getColorRGB16), 9u);
    EXPECT_EQ(virtualSlot(&Colormap::getColorRGBA16), 10u);
    EXPECT_EQ(virtualSlot(&Colormap::getColor16), 11u);
    EXPECT_EQ(virtualSlot(&Colormap::getColor), 12u);
    EXPECT_EQ(virtualSlot(&Colormap::getLabel), 13u);
    EXPECT_EQ(virtualSlot(&Colormap::getExtra), 14u);
}

/// Answers each scalar with a colour of its own.
class Gradient : public Colormap {
public:
    explicit Gradient(bool* gone = nullptr) : gone_(gone) {}
    ~Gradient() override {
        if (gone_ != nullptr)
            *gone_ = true;
    }

    int getMin() const override { return 2; }
    int getMax() const override { return 4; }
    int getSize() const override { return 8; }
    rgba_float_t getColor(double value) const override {
        double const t = (value - 2.0) / 2.0;
        return {t, 1.0 - t, t * 4.0 - 1.0, t};
    }
    std::string getLabel() const override { return "gradient"; }
    std::intptr_t getExtra() const override { return 7; }

private:
    bool* gone_;
};

TEST(ColormapLayout, HasTheCountsThenTheAgeThenTheCacheThenTheTime) {
    Gradient const map;
    auto const* const start = reinterpret_cast<char const*>(&static_cast<Colormap const&>(map));
    auto const place = [&](auto const& part) {
        return reinterpret_cast<char const*>(&part) - start;
    };
    EXPECT_EQ(place(static_cast<Nucleo::ReferenceBase<Colormap> const&>(map)), 0);
    auto const age = place(static_cast<Nucleo::Ageable const&>(map));
    EXPECT_GT(age, 0);
    EXPECT_GT(place(map.cachedChunk), age);
    EXPECT_GT(place(map.time), place(map.cachedChunk));
}

TEST(ColormapFresh, HasNoCacheTimeZeroAndThePresentAge) {
    Gradient const map;
    EXPECT_FALSE(map.cachedChunk);
    EXPECT_EQ(map.time, 0.0);
    EXPECT_EQ(map.age(), Nucleo::Ageable::now());
}

TEST(ColormapThroughItsBase, AnswersWithTheDerivedOperations) {
    bool gone = false;
    {
        ColormapPtr const map = new Gradient(&gone);
        EXPECT_EQ(map->getMin(), 2);
        EXPECT_EQ(map->getMax(), 4);
        EXPECT_EQ(map->getSize(), 8);
        EXPECT_EQ(map->getLabel(), "gradient");
        EXPECT_EQ(map->getExtra(), 7);
        EXPECT_EQ(map->getColor(3), rgba_float_t(0.5, 0.5, 1, 0.5));
    }
    EXPECT_TRUE(gone) << "the last pointer deletes the derived object";
}

TEST(ColormapByEntry, LooksUpTheScalarThatTheEntryStandsFor) {
    Gradient const map;  // entry i stands for 2 + 2 * i / 8
    EXPECT_EQ(map.getColorRGB(0), (rgb8_t{0, 255, 0}));
    EXPECT_EQ(map.getColorRGB(4), (rgb8_t{128, 128, 255}));
    EXPECT_EQ(map.getColorRGB(8), (rgb8_t{255, 0, 255}));
    EXPECT_EQ(map.getColorRGBA(2), (rgba8_t{64, 191, 0, 64}));
    EXPECT_EQ(map.getColorRGB16(4), (rgb16_t{32768, 32768, 65535}));
    EXPECT_EQ(map.getColorRGBA16(2), (rgba16_t{16384, 49151, 0, 16384}));
    EXPECT_EQ(map.getColor16(3.0), (rgba16_t{32768, 32768, 65535, 32768}));
}

TEST(ColormapByEntry, LimitsWhatIsOutsideAndTakesNoNumberForZero) {
    Gradient const map;
    double const none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(map.getColor16(none), (rgba16_t{0, 0, 0, 0}));
    EXPECT_EQ(map.getColorRGB(-100), (rgb8_t{0, 255, 0}));
    EXPECT_EQ(map.getColorRGB(100), (rgb8_t{255, 0, 255}));
}

}  // namespace
}  // namespace tests
