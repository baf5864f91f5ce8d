/// What consumers see of a map while and after it is published.
#include <gtest/gtest.h>

#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

using namespace Orlo;

/// Looks a colour up in each map that it hears of, at that moment.
class Witness : public ValueNotifier {
public:
    explicit Witness(double scalar) : scalar_(scalar) {}

    void valueChanged(ValuePtr const& value, PoolPtr const&, std::string const&) override {
        ColormapPtr map;
        StrongPtr<VTypedValueBase<ColormapPtr>, VValueBase>(value)->getValue(map);
        seen.push_back(map->getColor(scalar_));
    }

    std::vector<rgba_float_t> seen;

private:
    double scalar_;
};

/// A map that is published early, and what its start values answer at 0.25.
struct Early {
    std::string key;
    std::vector<Setting> settings;  ///< other values, for the end
    rgba_float_t atFirst;
    std::size_t publishings = 2;
};

std::ostream& operator<<(std::ostream& out, Early const& each) {
    return out << each.key;
}

class EarlyPublish : public PluginTest, public testing::WithParamInterface<Early> {};

TEST_P(EarlyPublish, ShowsTheStartValuesAndThenTheParameters) {
    ObjectPtr const object = create(GetParam().key);
    for (Setting const& setting : GetParam().settings)
        set(*object, setting.name, setting.text);
    StrongPtr<Witness, ValueNotifier> const witness = new Witness(0.25);
    tincture(*object).output()->addNotifier(witness);
    PoolPtr const pool = makePool();
    ColormapPtr const map = update(*object, pool);
    EXPECT_FALSE(map->getColor(0.25) == GetParam().atFirst);
    ASSERT_EQ(witness->seen.size(), GetParam().publishings);
    EXPECT_EQ(witness->seen.front(), GetParam().atFirst);
    if (GetParam().publishings == 2) {
        EXPECT_EQ(witness->seen.back(), map->getColor(0.25));
    }
}

rgba_float_t const Nothing{0, 0, 0, 0};

INSTANTIATE_TEST_SUITE_P(
    Maps, EarlyPublish,
    testing::Values(
        Early{"Colormaps/Intensitymap", {}, Nothing}, Early{"Colormaps/Monochrome", {}, Nothing},
        Early{"Colormaps/DopplerMap",
              {{"deviation", "0.1"}, {"lineintensity", "3"}, {"linewidth", "1"}},
              {1.9993682, 0.99936813, 0.99936813, 1}},
        Early{"Colormaps/RedGreen", {}, Nothing}, Early{"Colormaps/Muv", {}, Nothing},
        Early{"Colormaps/LogRedGreen", {}, Nothing, 1}, Early{"Colormaps/Ort", {}, Nothing, 1},
        Early{"Colormaps/Zebramap", {}, Nothing}, Early{"Colormaps/ZeroInfinity", {}, Nothing, 1}),
    [](auto const& each) { return testName(each.param.key); });

/// The two objects that depend on time.
class TimedMap : public PluginTest, public testing::WithParamInterface<std::string> {};

TEST_P(TimedMap, GetsTheTimeANewAgeAndANewIconButTheSameColours) {
    ObjectPtr const object = create(GetParam());
    PoolPtr const pool = makePool();
    ColormapPtr const map = update(*object, pool);
    EXPECT_EQ(map->time, 0.0);
    std::vector<rgba_float_t> before;
    for (int i = -10; i <= 20; ++i)
        before.push_back(map->getColor(i / 10.0));
    auto const age = map->age();
    unsigned const icons = tincture(*object).iconCount();

    set(*object, "time", "0.5[0,10]@0.1");
    EXPECT_EQ(update(*object, pool).get(), map.get());
    EXPECT_EQ(map->time, 0.5);
    EXPECT_GT(map->age(), age);
    EXPECT_EQ(tincture(*object).iconCount(), icons + 1);
    for (int i = -10; i <= 20; ++i)
        EXPECT_EQ(map->getColor(i / 10.0), before[static_cast<std::size_t>(i + 10)]) << i;

    set(*object, "timescale", "4");
    update(*object, pool);
    EXPECT_EQ(map->time, 2.0);
}

TEST_P(TimedMap, HasATimeForEachPool) {
    ObjectPtr const object = create(GetParam());
    PoolPtr const one = makePool("one"), other = makePool("other");
    set(*object, "time", "7[0,10]@1", other);
    EXPECT_EQ(update(*object, one)->time, 0.0);
    EXPECT_EQ(update(*object, other)->time, 7.0);
}

INSTANTIATE_TEST_SUITE_P(Maps, TimedMap,
                         testing::Values("Colormaps/Colorramp", "Colormaps/Zebramap"),
                         [](auto const& key) { return testName(key.param); });

/// A slot whose parameter holds another type yields no value.
using SlotWithoutValue = PluginTest;

TEST_F(SlotWithoutValue, LeavesANewMapAtItsStartValue) {
    ObjectPtr const other = create("Colormaps/DopplerMap");
    ObjectPtr const object = create("Colormaps/Monochrome");
    object->slot("color")->connect(other->slot("intensity")->ownParameter(), {});
    EXPECT_EQ(update(*object, makePool())->getColor(0.5), Nothing);
}

TEST_F(SlotWithoutValue, LeavesAMapAtItsLastValue) {
    ObjectPtr const other = create("Colormaps/DopplerMap");
    ObjectPtr const object = create("Colormaps/Monochrome");
    PoolPtr const pool = makePool();
    rgba_float_t const red{1, 0, 0, 1};
    EXPECT_EQ(update(*object, pool)->getColor(0.5), red);
    object->slot("color")->connect(other->slot("intensity")->ownParameter(), {});
    set(*object, "color", "(0,0,1,1)");
    forceUpdate(*object, pool);
    EXPECT_EQ(mapOf(*object, pool)->getColor(0.5), red);
}

TEST_F(SlotWithoutValue, IsNotInverted) {
    ObjectPtr const other = create("Colormaps/DopplerMap");
    ObjectPtr const object = create("Colormaps/Glow");
    PoolPtr const pool = makePool();
    set(*object, "inverted", "yes");
    EXPECT_EQ(update(*object, pool)->getColor(0), (rgba_float_t{1, 1, 1, 1}));
    object->slot("inverted")->connect(other->slot("intensity")->ownParameter(), {});
    forceUpdate(*object, pool);
    EXPECT_EQ(mapOf(*object, pool)->getColor(0), (rgba_float_t{0, 0, 0, 1}));
}

}  // namespace
}  // namespace tests
