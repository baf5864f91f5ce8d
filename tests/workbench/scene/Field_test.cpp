#include "workbench/scene/Field.hpp"

#include <gtest/gtest.h>

using namespace workbench;

namespace tests {
namespace {

TEST(UniformGrid, PositionsAndCoordinatesAreInverse) {
    for (int const samples : {2, 3, 32, 255}) {
        UniformGrid const grid{samples, 2.5};
        EXPECT_EQ(grid.coordinate(0), -2.5);
        EXPECT_EQ(grid.coordinate(samples - 1), 2.5);
        for (int i = 0; i < samples; ++i)
            EXPECT_NEAR(grid.position(grid.coordinate(i)), i, 1e-12);
    }
    EXPECT_EQ((UniformGrid{3, 1.0}.coordinate(1)), 0.0);
}

}  // namespace
}  // namespace tests
