/// What consumers see of a map while and after it is published.
#include <gtest/gtest.h>

#include "host/values/VValueParameter.hpp"
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

TEST_P(TimedMap, KeepsItsTimeByItselfAndShowsNoTextsWithIt) {
    ObjectPtr const object = create(GetParam());
    for (char const* const name : {"time", "timescale"})
        EXPECT_EQ(object->slot(name)->parameter()->preferences()->words(),
                  std::set<std::string>{"local"})
            << name;
    VTime time(1.0, 0.0, 0.0, 0.0, "a unit", "a format", "a remark");
    ASSERT_TRUE(readParameter(*object->slot("time")->parameter(), makePool(), time));
    EXPECT_EQ(time.value, 0.0);
    EXPECT_EQ(time.unit + time.format + time.remark, "");
}

TEST_P(TimedMap, IsAtZeroWhereTheTimeYieldsNothing) {
    ObjectPtr const object = create(GetParam());
    StrongPtr<VValue<int>, VValueBase> const number = new VValue<int>(7);
    object->slot("time")->connect(new VValueParameter<int>(number, "a number"), {});
    EXPECT_EQ(update(*object, makePool())->time, 0.0);
}

INSTANTIATE_TEST_SUITE_P(Maps, TimedMap,
                         testing::Values("Colormaps/Colorramp", "Colormaps/Zebramap"),
                         [](auto const& key) { return testName(key.param); });

/// Lets a slot yield no value: its parameter holds another type.
void withhold(VObject& object, std::string const& slot) {
    StrongPtr<VValue<VTime>, VValueBase> const time = new VValue<VTime>;
    object.slot(slot)->connect(new VValueParameter<VTime>(time, "a time"), {});
}

/// What a new map answers if one slot yields nothing, so that its field keeps
/// the value that it starts with.
struct StartRow {
    std::string entry, slot;
    std::vector<Setting> settings;  ///< the slot's own value, which must not show, and others
    double scalar;
    rgba_float_t color;
};

class StartValue : public PluginTest, public testing::WithParamInterface<StartRow> {};

TEST_P(StartValue, StandsWhereTheSlotYieldsNothing) {
    StartRow const& row = GetParam();
    ObjectPtr const object = create("Colormaps/" + row.entry);
    for (Setting const& setting : row.settings)
        set(*object, setting.name, setting.text);
    withhold(*object, row.slot);
    EXPECT_EQ(update(*object, makePool())->getColor(row.scalar), row.color);
}

rgba_float_t const DopplerAtAQuarter{1.9993682, 0.99936813, 0.99936813, 1};

INSTANTIATE_TEST_SUITE_P(
    Maps, StartValue,
    testing::Values(
        // A "color" of 0 is red everywhere; a bent input with the exponent 0 is 1.
        StartRow{"Colorramp", "color", {}, 0.7, {1, 0, 0, 1}},
        StartRow{"Colorramp",
                 "saturator",
                 {{"saturator", "3"}},
                 0.4,
                 {0.32026285, 0.9832706, 0.008259496, 1}},
        StartRow{"Colorramp", "purity", {{"saturator", "5"}}, 0.8, {0.5184, 0.5184, 0.5184, 1}},
        StartRow{"Colorramp", "exp_scale", {}, 0.6, {0.2077903, 0.020127287, 0.958441, 1}},
        StartRow{"Colorramp",
                 "shift",
                 {{"shift", "0.25"}},
                 0.4,
                 {0.32026285, 0.9832706, 0.008259496, 1}},
        StartRow{"DopplerMap", "deviation", {{"deviation", "0.1"}}, 0.25, DopplerAtAQuarter},
        StartRow{"DopplerMap", "lineintensity", {{"lineintensity", "3"}}, 0.25, DopplerAtAQuarter},
        StartRow{"DopplerMap", "intensity", {{"intensity", "3"}}, 0.25, DopplerAtAQuarter},
        StartRow{"DopplerMap", "linewidth", {{"linewidth", "1"}}, 0.25, DopplerAtAQuarter},
        // No colour, and a centre at 0, which is grey.
        StartRow{"Glow", "glow", {}, 0.25, {-0.125, -0.125, -0.125, 0}},
        StartRow{"Glow", "center", {}, 0.25, {0.25, 0.25, 0.25, 1}},
        StartRow{"Intensitymap", "startcolor", {}, 0.25, {0.25, 0.25, 0.25, 0.25}},
        StartRow{"Intensitymap", "endcolor", {}, 0.25, {0, 0, 0, 0.75}},
        // The complement of no colour is white, but it has no weight.
        StartRow{"RedGreen", "startcolor", {}, 0.5, {0, 0.75, 0, 0.75}},
        StartRow{"RedGreen", "endcolor", {}, 0.5, {0.75, 0, 0, 0.75}},
        StartRow{"RedGreen", "blend", {{"blend", "1"}}, 1, {0, 1, 0, 1}},
        StartRow{"RedGreen", "multiplier", {}, 0.5, {1, 1, 0, 2}},
        StartRow{"LogRedGreen", "startcolor", {}, 0, {0, 1, 0, 1}},
        StartRow{"LogRedGreen", "endcolor", {}, 0, {0, 0, 0, 0}},
        StartRow{"LogRedGreen", "blend", {{"blend", "1"}}, 0, {0, 1, 0, 1}},
        StartRow{
            "LogRedGreen", "multiplier", {{"multiplier", "0"}, {"blend", "0.5"}}, 0, {0, 2, 1, 2}},
        StartRow{"Zebramap", "startcolor", {}, 0.025, {0.25, 0.25, 0.25, 0.25}},
        StartRow{"Zebramap", "endcolor", {}, 0.025, {0, 0, 0, 0.75}},
        StartRow{"Zebramap", "frequency", {}, 0.25, {0.25, 0.25, 0.25, 1}},
        StartRow{"Zebramap", "phase", {{"phase", "0.5"}}, 0.025, {0.25, 0.25, 0.25, 1}},
        StartRow{"ZeroInfinity", "startpositive", {}, 0, {0, 0, 0, 0}},
        StartRow{"ZeroInfinity", "endpositive", {}, 1, {0, 0, 0, 0}},
        StartRow{"ZeroInfinity", "startnegative", {{"range", "-2,-2"}}, 0, {0, 0, 0, 0}},
        StartRow{"ZeroInfinity", "endnegative", {}, -1, {0, 0, 0, 0}},
        StartRow{"ZeroInfinity", "zero", {{"epsilon", "1"}}, 0.5, {0, 0, 0, 0}},
        StartRow{"ZeroInfinity", "epsilon", {{"epsilon", "1"}}, 0, {0.5, 1, 0, 1}},
        // From 0 to 1: a half stays one, and is just within the band.
        StartRow{"ZeroInfinity",
                 "range",
                 {{"range", "2,3"}, {"epsilon", "0.2951673"}},
                 0.5,
                 {1, 1, 1, 1}},
        // Without a light it is D65, which picks blue behind green.
        StartRow{
            "MaxDistinguishableColors",
            "Standard Illumiant",
            {{"RGB Steps", "2"}, {"Number of Colors", "4"}, {"Background Color 2", "(1,1,1,1)"}},
            0,
            {0, 0, 1, 1}},
        StartRow{"MaxDistinguishableColors",
                 "Background Color 1",
                 {{"RGB Steps", "2"}, {"Background Color 1", "(0,1,0,1)"}},
                 0,
                 {0, 1, 0, 1}},
        StartRow{"MaxDistinguishableColors",
                 "Background Color 2",
                 {{"RGB Steps", "2"}, {"Background Color 2", "(0,1,0,1)"}},
                 0,
                 {0, 1, 0, 1}},
        StartRow{"Monochrome", "color", {}, 0.5, Nothing}),
    [](auto const& each) { return testName(each.param.entry + " " + each.param.slot); });

using SlotWithoutValue = PluginTest;

TEST_F(SlotWithoutValue, LeavesTheStepsAtTheirStartValue) {
    ObjectPtr const object = create("Colormaps/Colorramp");
    set(*object, "steps", "100");
    withhold(*object, "steps");
    EXPECT_EQ(update(*object, makePool())->getSize(), 256);
}

TEST_F(SlotWithoutValue, LeavesAMapAtItsLastValue) {
    ObjectPtr const object = create("Colormaps/Monochrome");
    PoolPtr const pool = makePool();
    rgba_float_t const red{1, 0, 0, 1};
    EXPECT_EQ(update(*object, pool)->getColor(0.5), red);
    withhold(*object, "color");
    set(*object, "color", "(0,0,1,1)");
    forceUpdate(*object, pool);
    EXPECT_EQ(mapOf(*object, pool)->getColor(0.5), red);
}

TEST_F(SlotWithoutValue, IsNotInverted) {
    ObjectPtr const object = create("Colormaps/Glow");
    PoolPtr const pool = makePool();
    set(*object, "inverted", "yes");
    EXPECT_EQ(update(*object, pool)->getColor(0), (rgba_float_t{1, 1, 1, 1}));
    withhold(*object, "inverted");
    forceUpdate(*object, pool);
    EXPECT_EQ(mapOf(*object, pool)->getColor(0), (rgba_float_t{0, 0, 0, 1}));
}

}  // namespace
}  // namespace tests
