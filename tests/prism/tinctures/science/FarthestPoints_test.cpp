/// The choice of points that are far apart: the plain form by what it picks, the
/// fast one by the plain one.
#include "prism/tinctures/science/FarthestPoints.hpp"

#include <gmock/gmock.h>

#include <limits>
#include <random>

#include "prism/tinctures/science/plainFarthestPoints.hpp"

namespace tests {
namespace {

using namespace prism;
using testing::ElementsAre;

LabPoint at(double L, double a = 0, double b = 0) {
    return {.L = L, .a = a, .b = b, .nearest = NothingNear};
}

TEST(PlainFarthestPoints, TakesTheFarthestFromTheBackgroundsThenFromThePicks) {
    EXPECT_THAT(plainFarthestPoints({at(1), at(10), at(4), at(6)}, {at(0)}, 4),
                ElementsAre(1, 2, 3, 0));
}

TEST(PlainFarthestPoints, TakesTheFirstOfEquals) {
    EXPECT_THAT(plainFarthestPoints({at(0, 3), at(0, -3), at(0, 0, 3), at(0, 0, -3)}, {at(0)}, 4),
                ElementsAre(0, 1, 2, 3));
}

TEST(PlainFarthestPoints, MeasuresTheNearestOfAllBackgrounds) {
    EXPECT_THAT(plainFarthestPoints({at(0), at(50), at(90)}, {at(0), at(100)}, 1), ElementsAre(1));
}

TEST(PlainFarthestPoints, RepeatsTheLastPickOnceAllCoincide) {
    EXPECT_THAT(plainFarthestPoints({at(0), at(5), at(9)}, {at(0)}, 6),
                ElementsAre(2, 1, 1, 1, 1, 1));
}

TEST(PlainFarthestPoints, RepeatsTheFirstCandidateIfAllAreBackgrounds) {
    EXPECT_THAT(plainFarthestPoints({at(7), at(7)}, {at(7)}, 3), ElementsAre(0, 0, 0));
}

TEST(PlainFarthestPoints, TakesAPointOfNaNsAsNearToNothing) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THAT(plainFarthestPoints({at(1), at(nan, nan, nan), at(2)}, {at(0)}, 3),
                ElementsAre(1, 1, 1));
}

TEST(PlainFarthestPoints, WithoutBackgroundsBeginsWithTheFirst) {
    EXPECT_THAT(plainFarthestPoints({at(1), at(2), at(5)}, {}, 3), ElementsAre(0, 2, 1));
}

Orlo::Enum illuminant(std::string const& word) {
    return Orlo::Enum().addCase("D50").addCase("D65").select(word);
}

/// A pair of backgrounds of one kind or another.
std::vector<RgbTriple> randomBackgrounds(int kind, std::mt19937& random) {
    std::uniform_real_distribution<double> component(0.0, 1.0);
    std::vector<RgbTriple> backgrounds;
    for (int i = 0; i < 2; ++i) {
        double const grey = component(random);
        switch (kind) {
        case 0:  // greys, which many points are equally far from
            backgrounds.push_back({grey, grey, grey});
            break;
        case 1:  // equal ones, which are points of the grid
            backgrounds.push_back({1, 1, 1});
            break;
        case 2:
            backgrounds.push_back({grey, std::numeric_limits<double>::quiet_NaN(), grey});
            break;
        case 3:  // beyond the grid, and far beyond
            backgrounds.push_back({3 * grey - 1, 1e30 * component(random), -component(random)});
            break;
        default:
            backgrounds.push_back({grey, component(random), component(random)});
        }
    }
    return backgrounds;
}

struct GridCase {
    int steps;
    std::size_t count;
    Orlo::Enum light;
    std::vector<RgbTriple> backgrounds;
};

void expectPlainPicks(GridCase const& given) {
    RgbGrid const grid(given.steps);
    std::vector<RgbTriple> const points = plainGrid(grid);
    std::vector<LabPoint> const backgrounds = rgbToLab(given.light, 2, given.backgrounds);
    auto const plain = plainFarthestPoints(
        rgbToLab(given.light, static_cast<int>(points.size()), points), backgrounds, given.count);
    EXPECT_EQ(FarthestPoints(given.light, grid).pick(backgrounds, given.count), plain)
        << given.steps << " steps, " << given.count << " colours, " << given.light.selected();
}

TEST(FarthestPoints, PicksWhatThePlainFormPicks) {
    constexpr unsigned Seed = 20240322;
    std::mt19937 random(Seed);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE("seed " + std::to_string(Seed) + ", round " + std::to_string(round));
        int const steps = std::uniform_int_distribution(1, 20)(random);
        auto const count = std::uniform_int_distribution<std::size_t>(1, 60)(random);
        auto const light = illuminant(round % 2 == 0 ? "D50" : "D65");
        expectPlainPicks({steps, count, light, randomBackgrounds(round % 5, random)});
    }
}

TEST(FarthestPoints, PicksAThousandColoursAsThePlainFormDoes) {
    expectPlainPicks({30, 1000, illuminant("D50"), {{0, 0, 0}, {0, 0, 0}}});
    expectPlainPicks({30, 1000, illuminant("D65"), {{0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}}});
}

TEST(FarthestPoints, PicksMoreColoursThanCandidatesAsThePlainFormDoes) {
    for (int const steps : {1, 2, 3, 4})
        expectPlainPicks({steps, 100, illuminant("D50"), {{0, 0, 0}, {1, 1, 1}}});
}

TEST(FarthestPoints, PicksNothingFromNothing) {
    std::vector<LabPoint> const black = rgbToLab(illuminant("D50"), 1, {{0, 0, 0}});
    EXPECT_TRUE(FarthestPoints(illuminant("D50"), RgbGrid(0)).pick(black, 5).empty());
    EXPECT_TRUE(FarthestPoints(illuminant("D50"), RgbGrid(3)).pick(black, 0).empty());
}

TEST(RgbGrid, VariesRedSlowestAndMultipliesByTheRoundedStep) {
    RgbGrid const grid(30);
    double const h = 1.0 / 29;
    RgbTriple const point = grid[(7 * 30 + 14) * 30 + 29];
    EXPECT_EQ(point.red, 7 * h);
    EXPECT_EQ(point.green, 14 * h);
    EXPECT_EQ(point.blue, 29 * h);
}

}  // namespace
}  // namespace tests
