/// What makes values and slots, found by the name of their type.
#include "runtime/lattice/TypeRegistry.hpp"

#include <gtest/gtest.h>

namespace tests {
namespace {

using namespace Orlo;

/// A creator of values under a name of the test's own.
class Maker : public VValueCreator {
public:
    Maker() { registerCreator(WeakPtr<VValueCreator, VValueCreator>(this), "test type"); }
    ValuePtr create(std::string const&, bool& ok) const override {
        ok = true;
        return nullptr;
    }
};
using MakerPtr = StrongPtr<Maker, VValueCreator>;

TEST(ValueCreators, AreFoundByNameTheLatestOneFirst) {
    EXPECT_FALSE(findValueCreator("test type"));
    MakerPtr const first = new Maker;
    EXPECT_EQ(findValueCreator("test type").get(), first.get());
    {
        MakerPtr const second = new Maker;
        EXPECT_EQ(findValueCreator("test type").get(), second.get());
        EXPECT_EQ(typeCreatorCount(), 2u);
    }
    EXPECT_EQ(findValueCreator("test type").get(), first.get());
    EXPECT_FALSE(findValueCreator("test"));
    EXPECT_FALSE(findSlotCreator("test type"));
}

TEST(ValueCreators, AreTakenOutWhenTheyDieInAnyOrder) {
    MakerPtr first = new Maker;
    MakerPtr const second = new Maker;
    first = nullptr;
    EXPECT_EQ(findValueCreator("test type").get(), second.get());
    EXPECT_EQ(typeCreatorCount(), 1u);
}

TEST(ValueCreators, LeaveNothingBehind) {
    { MakerPtr const maker = new Maker; }
    EXPECT_EQ(typeCreatorCount(), 0u);
    EXPECT_FALSE(findValueCreator("test type"));
}

}  // namespace
}  // namespace tests
