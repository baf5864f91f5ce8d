#include <gtest/gtest.h>

#include "tests/workbench/nodes/Stage.hpp"
#include "workbench/nodes/Node.hpp"

using namespace Orlo;
using namespace workbench;

namespace tests {
namespace {

class Data : public testing::Test {
protected:
    Data() { stage.furnish(); }

    FieldPtr field() { return provided<FieldPtr>(stage["theField"], "field", stage.pool); }

    /// The parameter and the reason of an object's fault; empty if it has none.
    std::string fault(char const* name) {
        Fault const& found = dynamic_cast<Node const&>(stage[name]).fault();
        return found.reason.empty() ? "" : found.parameter + ": " + found.reason;
    }

    Stage stage;
};

TEST_F(Data, TheHillIsHighestInTheMiddleAndFallsToNothing) {
    stage.set("theBundle", "gridsize", "33");
    FieldPtr const hill = field();
    ASSERT_TRUE(hill);
    EXPECT_EQ(hill->grid(), (UniformGrid{33, 1.0}));
    EXPECT_EQ(hill->sample(16, 16, 16), 1.0);
    for (int i = 16; i < 32; ++i)
        EXPECT_GT(hill->sample(i, 16, 16), hill->sample(i + 1, 16, 16));
    EXPECT_EQ(hill->sample(32, 16, 32), 0.0);
    EXPECT_EQ(hill->sample(0, 0, 0), 0.0);
}

TEST_F(Data, TheHillIsRoundAndStaysWithin0And1) {
    FieldPtr const hill = field();
    int const last = hill->grid().samples - 1;
    for (int i = 0; i <= last; i += 3)
        for (int j = 0; j <= last; j += 3)
            for (int k = 0; k <= last; k += 3) {
                double const value = hill->sample(i, j, k);
                EXPECT_GE(value, 0.0);
                EXPECT_LE(value, 1.0);
                EXPECT_NEAR(hill->sample(last - i, k, j), value, 1e-12);
            }
}

struct BundleCase {
    char const* parameter;
    char const* text;
    UniformGrid grid;
    double height;  ///< of the sample nearest to the middle
};

TEST_F(Data, NumbersOutsideTheirRangeCountAsTheNearestInside) {
    stage.set("theBundle", "gridsize", "3");
    BundleCase const table[] = {
        {"gridsize", "1", {2, 1.0}, 0.0},
        {"gridsize", "-7", {2, 1.0}, 0.0},
        {"gridsize", "1000000", {2048, 1.0}, 1.0},
        {"gridsize", "3", {3, 1.0}, 1.0},
        {"a", "0.5", {3, 1.0}, 0.5},
        {"a", "1", {3, 1.0}, 1.0},
        {"size", "2", {3, 2.0}, 1.0},
        {"size", "0", {3, 1.0}, 1.0},
        {"size", "-4", {3, 1.0}, 1.0},
        {"size", "nan", {3, 1.0}, 1.0},
        {"size", "inf", {3, 1.0}, 1.0},
    };
    for (BundleCase const& each : table) {
        stage.set("theBundle", each.parameter, each.text);
        FieldPtr const hill = field();
        EXPECT_EQ(hill->grid(), each.grid) << each.parameter << each.text;
        int const middle = each.grid.samples / 2;
        EXPECT_NEAR(hill->sample(middle, middle, middle), each.height, 1e-5)
            << each.parameter << each.text;
    }
}

struct TimeCase {
    char const* time;
    char const* tmax;
    char const* timesteps;
    double age;  ///< how far the hill has sunk
};

TEST_F(Data, TheHillSinksInSteps) {
    TimeCase const table[] = {
        {"0[0,1]@0.1", "1", "10", 0.0},    {"0.04[0,1]@0.1", "1", "10", 0.0},
        {"0.06[0,1]@0.1", "1", "10", 0.1}, {"0.5[0,1]@0.1", "1", "10", 0.5},
        {"1[0,1]@0.1", "1", "10", 1.0},    {"7[0,9]@0.1", "1", "10", 1.0},
        {"-3[0,1]@0.1", "1", "10", 0.0},   {"0.5[0,1]@0.1", "2", "10", 0.3},
        {"1[0,1]@0.1", "2", "1", 1.0},     {"0.4[0,1]@0.1", "1", "1", 0.0},
        {"1[0,1]@0.1", "1", "0", 0.0},     {"1[0,1]@0.1", "0", "10", 0.0},
        {"nan[0,1]@0.1", "1", "10", 0.0},  {"1[0,1]@0.1", "nan", "10", 0.0},
    };
    stage.make("Create/GlobalTime", "GlobalTime");
    ASSERT_TRUE(stage.connect("theField", "time", "GlobalTime", "value"));
    stage.set("theBundle", "gridsize", "3");
    for (TimeCase const& each : table) {
        stage.set("GlobalTime", "value", each.time);
        stage.set("theBundle", "tmax", each.tmax);
        stage.set("theBundle", "timesteps", each.timesteps);
        double const expected = 0.25 / (1.0 + 8.0 * each.age * 0.5);  // u = 1/2 at a face
        EXPECT_NEAR(field()->sample(2, 1, 1), expected, 1e-12)
            << each.time << " " << each.tmax << " " << each.timesteps;
    }
}

TEST_F(Data, ANameThatTheBundleDoesNotHaveGivesNothingWhichIsAFault) {
    ASSERT_TRUE(field());
    EXPECT_EQ(fault("theField"), "");
    stage.set("theField", "fieldname", "smoke@radialfield");
    EXPECT_FALSE(field());
    EXPECT_EQ(fault("theField"),
              "fieldname: there is no field 'smoke' on the grid 'AnalyticUniformGrid'");
    stage.set("theField", "fieldname", "radialfield@radialfield");
    EXPECT_TRUE(field());
    EXPECT_EQ(fault("theField"), "");
    stage.set("theGrid", "gridname", "Sphere@Sphere");
    EXPECT_FALSE(field());
    EXPECT_EQ(fault("theGrid"), "gridname: the data set has no grid 'Sphere'");
}

TEST_F(Data, WhatIsNotConnectedGivesNothingWhichIsAFault) {
    stage.remove("theBundle");
    EXPECT_FALSE(field());
    EXPECT_EQ(fault("theGrid"), "spacetime: there is no data set to take a grid from");
    stage.remove("theGrid");
    EXPECT_FALSE(field());
    EXPECT_EQ(fault("theField"), "grid: there is no grid to take a field from");
}

}  // namespace
}  // namespace tests
