#include <gtest/gtest.h>

#include "host/values/Range.hpp"

TEST(Smoke, RangeIsLinear) { EXPECT_EQ(Orlo::Range(2, 4)(0.5), 3); }
