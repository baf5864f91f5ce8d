/// Values that hold a colour map.
#include "runtime/vellum/ColormapValue.hpp"

#include <gtest/gtest.h>

#include "host/values/VSlot.hpp"

namespace tests {
namespace {

using namespace Orlo;

class Black : public Colormap {
public:
    int getMin() const override { return 0; }
    int getMax() const override { return 1; }
    int getSize() const override { return 1; }
    rgba_float_t getColor(double) const override { return {}; }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }
};

TEST(ColormapValues, GiveTheAddressOfTheirOwnStampAndTheAgeOfTheirMap) {
    ColormapPtr map = new Black;
    StrongPtr<ColormapValue, VValueBase> const value = new ColormapValue(map);
    VValueBase const& base = *value;
    Nucleo::Ageable const* const own = value.get();
    map->touch();
    EXPECT_EQ(base.ageable(), own) << "whatever becomes of the map";
    EXPECT_EQ(value->contentAge(), map->age());
    EXPECT_LT(own->age(), map->age());
    value->setValue(nullptr);
    EXPECT_EQ(base.ageable(), own);
    EXPECT_EQ(value->contentAge(), 0u);
}

TEST(SlotsOfColormaps, HaveTheAgeOfTheMapOrOfTheValueWhicheverIsLater) {
    ColormapPtr const map = new Black;
    ParameterPtr const parameter = makeColormapParameter("colormap");
    SlotPtr const slot = new VSlot("colormap", 0, parameter, true);
    (StrongPtr<VTypedValueBase<ColormapPtr>, VValueBase>(parameter->ownValue()))->setValue(map);
    map->touch();
    EXPECT_EQ(slot->age(nullptr), map->age());
    parameter->touch();
    EXPECT_EQ(slot->age(nullptr), Nucleo::Ageable::now());
    EXPECT_LT(map->age(), Nucleo::Ageable::now()) << "the map itself has not changed";
}

TEST(ColormapValues, CopiedShareTheMap) {
    ColormapPtr const map = new Black;
    StrongPtr<ColormapValue, VValueBase> const value = new ColormapValue(map);
    ValuePtr const copy = value->copy();
    ColormapPtr held;
    (StrongPtr<VTypedValueBase<ColormapPtr>, VValueBase>(copy))->getValue(held);
    EXPECT_EQ(held.get(), map.get());
    EXPECT_FALSE(copy->differs(value));
    value->setValue(new Black);
    EXPECT_TRUE(copy->differs(value));
}

/// A value that gives no map.
class Silent : public ColormapValue {
public:
    bool getValue(ColormapPtr&) const override { return false; }
};

TEST(ColormapValues, AreAssignedFromOnesThatGiveAMapOnly) {
    ColormapPtr const map = new Black;
    StrongPtr<ColormapValue, VValueBase> const value = new ColormapValue(map);
    StrongPtr<ColormapValue, VValueBase> const taker = new ColormapValue;
    EXPECT_TRUE(taker->assign(value));
    EXPECT_FALSE(taker->differs(value));
    for (ValuePtr const& other :
         {ValuePtr(), ValuePtr(new VValue<double>(1)), ValuePtr(new Silent)}) {
        EXPECT_FALSE(taker->assign(other));
        EXPECT_TRUE(taker->differs(other));
    }
    EXPECT_FALSE(taker->differs(value)) << "it has kept its map";
}

TEST(SlotsOfColormaps, HaveTheAgeOfAForeignKindOfValueAlone) {
    ColormapPtr const map = new Black;
    StrongPtr<VValue<ColormapPtr>, VValueBase> const plain = new VValue<ColormapPtr>(map);
    ParameterPtr const parameter = new VValueParameter<ColormapPtr>(plain, "colormap");
    SlotPtr const slot = new VSlot("colormap", 0, parameter, true);
    parameter->touch();
    Nucleo::Ageable::Stamp const age = slot->age(nullptr);
    map->touch();
    EXPECT_EQ(slot->age(nullptr), age) << "its map is not asked";
}

TEST(ColormapValues, AreReadFromNoText) {
    StrongPtr<ColormapValue, VValueBase> const value = new ColormapValue(new Black);
    EXPECT_FALSE(value->setFromText("A Colormap Object."));
    EXPECT_EQ(value->text(), "A Colormap Object.");
    ColormapPtr held;
    value->getValue(held);
    EXPECT_TRUE(held);
}

TEST(ColormapParameters, HoldNoMapAtFirst) {
    ParameterPtr const parameter = makeColormapParameter("colormap");
    ColormapPtr map;
    EXPECT_TRUE(readParameter(*parameter, nullptr, map));
    EXPECT_FALSE(map);
    EXPECT_EQ(parameter->DefaultValue()->type(), typeid(ColormapPtr));
}

}  // namespace
}  // namespace tests
