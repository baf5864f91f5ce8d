/// The map of an update, where no map of a shipped object would show it.
#include "prism/tinctures/OutputMap.hpp"

#include <gtest/gtest.h>

#include "tests/support/objects.hpp"

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

class Painter : public Tincture {
public:
    Painter() : Tincture("painter", 0, nullptr, "colormap") {}
    bool update(VRequest&, double) override { return true; }
};

TEST(OutputMaps, AreNobodysBeforeOneIsHeld) {
    StrongPtr<Painter, VManagedObjectBase> const painter = new Painter;
    VRequest const request(makePool());
    prism::OutputMap output(*painter, request);
    EXPECT_TRUE(output.isEmpty());
    EXPECT_EQ(output.as<Black>(), nullptr);
    output.hold(new Black);
    EXPECT_FALSE(output.isEmpty());
    EXPECT_NE(output.as<Black>(), nullptr);
}

}  // namespace
}  // namespace tests
