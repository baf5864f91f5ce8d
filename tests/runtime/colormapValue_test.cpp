/// Values that hold a colour map.
#include "runtime/vellum/ColormapValue.hpp"

#include <gtest/gtest.h>

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

TEST(ColormapValues, HaveTheAgeOfTheirMap) {
    ColormapPtr const map = new Black;
    StrongPtr<ColormapValue, VValueBase> const value = new ColormapValue(map);
    map->touch();
    EXPECT_EQ(static_cast<VValueBase&>(*value).ageable()->age(), map->age());
    value->setValue(nullptr);
    EXPECT_LT(static_cast<VValueBase const&>(*value).ageable()->age(), map->age())
        << "without a map, their own";
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
