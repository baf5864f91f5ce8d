/// Objects that depend on time.
#include "host/object/TimeDependent.hpp"

#include <gtest/gtest.h>

#include "tests/host/object/Node.hpp"
#include "tests/support/objects.hpp"

namespace tests {
namespace {

using namespace Orlo;

class Clock : public Node, public TimeDependent {
public:
    explicit Clock(PreferencesPtr const& preferences = nullptr)
        : TimeDependent(preferences, VTime(0.5, 0, 1), "time", "timescale") {}
};

class TimeDependence : public testing::Test {
protected:
    StrongPtr<Clock, VManagedObjectBase> clock_ = new Clock;
    PoolPtr pool_ = makePool();
    double timeAt(Range const& range, double standard = -1) const {
        return clock_->getTime(pool_, standard, range);
    }
};

TEST_F(TimeDependence, GivesTheObjectTheTwoParametersByTheirNames) {
    ASSERT_TRUE(clock_->slot("time"));
    ASSERT_TRUE(clock_->slot("timescale"));
    EXPECT_EQ(clock_->slot("time")->parameter()->DefaultValue()->type(), typeid(VTime));
    EXPECT_EQ(clock_->slot("time")->parameter()->DefaultValue()->text(), "0.5[0,1]@0");
    EXPECT_EQ(clock_->slot("timescale")->parameter()->DefaultValue()->type(), typeid(double));
    EXPECT_EQ(clock_->slot("timescale")->parameter()->DefaultValue()->text(), "1");
    EXPECT_TRUE(clock_->slot("time")->isInput());
}

TEST_F(TimeDependence, SharesTheOneVirtualBaseOfTheObject) {
    EXPECT_EQ(static_cast<VConnectable*>(static_cast<Node*>(clock_.get())),
              static_cast<VConnectable*>(static_cast<TimeDependent*>(clock_.get())));
}

TEST_F(TimeDependence, MapsTheScaledTimeThroughTheRange) {
    EXPECT_EQ(timeAt(Range(0, 1)), 0.5);
    EXPECT_EQ(timeAt(Range(10, 20)), 15);
    set(*clock_, "timescale", "3");
    EXPECT_EQ(timeAt(Range(0, 1)), 1.5) << "the time is not limited";
    set(*clock_, "time", "0.25[0,1]@0.1");
    EXPECT_EQ(timeAt(Range(0, 1)), 0.75);
}

TEST_F(TimeDependence, IsReadInThePool) {
    set(*clock_, "time", "0.125[0,1]@0", pool_);
    EXPECT_EQ(timeAt(Range(0, 1)), 0.125);
    EXPECT_EQ(clock_->getTime(makePool(), -1, Range(0, 1)), 0.5);
}

TEST_F(TimeDependence, TakesTheDefaultWhereTheTimeCannotBeRead) {
    pool_->createVariable(*clock_->slot("time")->parameter(), new VValue<int>(7));
    EXPECT_EQ(timeAt(Range(0, 1), 0.75), 0.75);
}

}  // namespace
}  // namespace tests
