/// The map of an update, where no map of a shipped object would show it.
#include "prism/tinctures/OutputMap.hpp"

#include <gtest/gtest.h>

#include "tests/prism/ForeignMap.hpp"
#include "tests/support/objects.hpp"

namespace tests {
namespace {

using namespace Orlo;

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
    EXPECT_EQ(output.as<ForeignMap>(), nullptr);
    output.hold(new ForeignMap);
    EXPECT_FALSE(output.isEmpty());
    EXPECT_NE(output.as<ForeignMap>(), nullptr);
}

}  // namespace
}  // namespace tests
