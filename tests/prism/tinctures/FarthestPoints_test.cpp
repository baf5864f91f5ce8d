/// The choice of points that are far apart.
#include "prism/tinctures/FarthestPoints.hpp"

#include <gmock/gmock.h>

#include <limits>

namespace tests {
namespace {

using namespace prism;
using testing::ElementsAre;

LabPoint at(double L, double a = 0, double b = 0) {
    return {.L = L, .a = a, .b = b, .nearest = NothingNear};
}

TEST(FarthestPoints, TakesTheFarthestFromTheBackgroundsThenFromThePicks) {
    EXPECT_THAT(farthestPoints({at(1), at(10), at(4), at(6)}, {at(0)}, 4), ElementsAre(1, 2, 3, 0));
}

TEST(FarthestPoints, TakesTheFirstOfEquals) {
    EXPECT_THAT(farthestPoints({at(0, 3), at(0, -3), at(0, 0, 3), at(0, 0, -3)}, {at(0)}, 4),
                ElementsAre(0, 1, 2, 3));
}

TEST(FarthestPoints, MeasuresTheNearestOfAllBackgrounds) {
    EXPECT_THAT(farthestPoints({at(0), at(50), at(90)}, {at(0), at(100)}, 1), ElementsAre(1));
}

TEST(FarthestPoints, RepeatsTheLastPickOnceAllCoincide) {
    EXPECT_THAT(farthestPoints({at(0), at(5), at(9)}, {at(0)}, 6), ElementsAre(2, 1, 1, 1, 1, 1));
}

TEST(FarthestPoints, RepeatsTheFirstCandidateIfAllAreBackgrounds) {
    EXPECT_THAT(farthestPoints({at(7), at(7)}, {at(7)}, 3), ElementsAre(0, 0, 0));
}

TEST(FarthestPoints, TakesAPointOfNaNsAsNearToNothing) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THAT(farthestPoints({at(1), at(nan, nan, nan), at(2)}, {at(0)}, 3),
                ElementsAre(1, 1, 1));
}

TEST(FarthestPoints, PicksNothingFromNothing) {
    EXPECT_TRUE(farthestPoints({}, {at(0)}, 5).empty());
    EXPECT_TRUE(farthestPoints({at(1)}, {at(0)}, 0).empty());
}

TEST(FarthestPoints, WithoutBackgroundsBeginsWithTheFirst) {
    EXPECT_THAT(farthestPoints({at(1), at(2), at(5)}, {}, 3), ElementsAre(0, 2, 1));
}

}  // namespace
}  // namespace tests
