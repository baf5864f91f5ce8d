/// The choice of points that are far apart: the plain form by what it picks, the
/// fast one by the plain one.
#include "prism/tinctures/science/FarthestPoints.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <random>

#include "prism/tinctures/science/lanes.hpp"
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

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

struct GridCase {
    int steps;
    std::size_t count;
    Orlo::Enum light;
    std::vector<RgbTriple> backgrounds;
};

std::vector<LabPoint> backgroundsOf(GridCase const& given) {
    return rgbToLab(given.light, static_cast<int>(given.backgrounds.size()), given.backgrounds);
}

std::vector<std::size_t> plainPicks(GridCase const& given) {
    std::vector<RgbTriple> const points = plainGrid(RgbGrid(given.steps));
    return plainFarthestPoints(rgbToLab(given.light, static_cast<int>(points.size()), points),
                               backgroundsOf(given), given.count);
}

/// The picks for a number of colours that the search is told to expect.
std::vector<std::size_t> picksExpecting(std::size_t expected, GridCase const& given) {
    FarthestPoints points(given.light, RgbGrid(given.steps), expected);
    for (LabPoint const& background : backgroundsOf(given))
        points.take(background);
    std::vector<std::size_t> picks;
    while (picks.size() < given.count) {
        std::size_t const last = picks.empty() ? 0 : picks.back();
        picks.push_back(points.pick().value_or(last));
    }
    return picks;
}

/// Whatever is expected, few colours or many, the picks are those of the plain form.
void expectPlainPicks(GridCase const& given) {
    std::vector<std::size_t> const plain = plainPicks(given);
    constexpr std::size_t Many = std::numeric_limits<std::size_t>::max();
    for (std::size_t const expected : {std::size_t{0}, Many})
        EXPECT_EQ(picksExpecting(expected, given), plain)
            << given.steps << " steps, " << given.count << " colours, " << given.light.selected()
            << (expected == 0 ? ", roughly" : ", exactly") << " measured";
}

using Random = std::mt19937;

/// Backgrounds of which each row says what is special.
struct BackgroundKind {
    char const* what;
    RgbTriple (*color)(Random& random);
};

double component(Random& random, double least = 0.0, double greatest = 1.0) {
    return std::uniform_real_distribution(least, greatest)(random);
}

double squaredDistance(LabPoint const& one, LabPoint const& other) {
    double const a = one.a - other.a, L = one.L - other.L, b = one.b - other.b;
    return (a * a + L * L) + b * b;
}

/// As far from grey as the start value of the distances, so that points lie on
/// both sides of it: those beyond are all equally far.
RgbTriple atTheStartValue(Random& random) {
    RgbTriple const direction{component(random, -1), component(random, -1), component(random, -1)};
    auto const at = [&](double far) {
        return RgbTriple{far * direction.red, far * direction.green, far * direction.blue};
    };
    Orlo::Enum const light = illuminant("D50");
    LabPoint const grey = rgbToLab(light, 1, {{0.5, 0.5, 0.5}})[0];
    double near = 1e3, far = 1e12;
    for (int halving = 0; halving < 100; ++halving) {
        double const middle = (near + far) / 2;
        (squaredDistance(rgbToLab(light, 1, {at(middle)})[0], grey) < NothingNear ? near : far) =
            middle;
    }
    return at(far);
}

constexpr BackgroundKind BackgroundKinds[] = {
    {"in the cube",
     [](Random& random) {
         return RgbTriple{component(random), component(random), component(random)};
     }},
    {"grey",
     [](Random& random) {
         double const grey = component(random);
         return RgbTriple{grey, grey, grey};
     }},
    {"a corner",
     [](Random& random) {
         auto const corner = [&] { return static_cast<double>(random() % 2); };
         return RgbTriple{corner(), corner(), corner()};
     }},
    {"beyond the cube",
     [](Random& random) {
         return RgbTriple{component(random, -1, 2), component(random, -1, 2),
                          component(random, -1, 2)};
     }},
    {"far beyond",
     [](Random& random) {
         return RgbTriple{component(random, -1e30, 1e30), component(random, -1e4, 1e4),
                          component(random)};
     }},
    {"at the start value", atTheStartValue},
    {"not a number",
     [](Random&) {
         return RgbTriple{0.5, NotANumber, 0.5};
     }},
    {"infinite",
     [](Random& random) {
         return RgbTriple{random() % 2 == 0 ? Infinity : -Infinity, component(random), 0};
     }},
};

class BackgroundsOf : public testing::TestWithParam<BackgroundKind> {};

TEST_P(BackgroundsOf, ThisKindGiveThePicksOfThePlainForm) {
    constexpr unsigned Seed = 20240322;
    Random random(Seed);
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE("seed " + std::to_string(Seed) + ", round " + std::to_string(round));
        GridCase given{.steps = std::uniform_int_distribution(1, 20)(random),
                       .count = std::uniform_int_distribution<std::size_t>(1, 80)(random),
                       .light = illuminant(round % 2 == 0 ? "D50" : "D65"),
                       .backgrounds = {}};
        given.backgrounds.push_back(GetParam().color(random));
        bool const isTwice = round % 3 == 0;
        given.backgrounds.push_back(isTwice ? given.backgrounds[0] : GetParam().color(random));
        expectPlainPicks(given);
    }
}

INSTANTIATE_TEST_SUITE_P(FarthestPoints, BackgroundsOf, testing::ValuesIn(BackgroundKinds),
                         [](auto const& each) {
                             std::string name = each.param.what;
                             std::ranges::replace(name, ' ', '_');
                             return name;
                         });

/// Beyond the start value points tie, and the first is taken; how the sums of the
/// distance are rounded decides which those are.
TEST(FarthestPoints, TakesTheFirstOfThosePointsThatNothingIsNearTo) {
    Random random(7);
    int ties = 0;
    for (int round = 0; round < 500; ++round) {
        SCOPED_TRACE(round);
        GridCase const given{.steps = std::uniform_int_distribution(5, 24)(random),
                             .count = 1,
                             .light = illuminant("D50"),
                             .backgrounds = {atTheStartValue(random)}};
        std::vector<RgbTriple> const points = plainGrid(RgbGrid(given.steps));
        LabPoint const background = backgroundsOf(given)[0];
        ties += squaredDistance(background, rgbToLab(given.light, 1, points)[0]) < NothingNear;
        expectPlainPicks(given);
    }
    EXPECT_GT(ties, 50) << "the first of all is hardly ever near enough";
}

TEST(FarthestPoints, PicksAThousandColoursAsThePlainFormDoes) {
    expectPlainPicks({30, 1000, illuminant("D50"), {{0, 0, 0}, {0, 0, 0}}});
    expectPlainPicks({30, 1000, illuminant("D65"), {{0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}}});
}

TEST(FarthestPoints, PicksOfAFineGridAsThePlainFormDoes) {
    expectPlainPicks({100, 30, illuminant("D50"), {{0, 0, 0}, {0, 0, 0}}});
    expectPlainPicks({64, 200, illuminant("D65"), {{1, 1, 1}, {0.2, 0.4, 0.3}}});
}

/// A colour that is nearly too far from a box to matter does so in this one.
TEST(FarthestPoints, PicksAFifthOfAGridAsThePlainFormDoes) {
    expectPlainPicks({25, 3000, illuminant("D50"), {{0, 0, 0}}});
}

TEST(FarthestPoints, PicksAllPointsInTheOrderOfThePlainForm) {
    for (int const steps : {1, 2, 3, 4, 7, 11, 13}) {
        std::size_t const points = static_cast<std::size_t>(steps * steps * steps);
        expectPlainPicks({steps, points + 10, illuminant("D50"), {{0, 0, 0}, {1, 1, 1}}});
    }
}

/// Nearer than rough points can tell from a taken one, and yet not taken.
TEST(FarthestPoints, PicksAPointThatIsNearlyTaken) {
    for (double const near : {1e-12, 1e-9, 1e-7, 1e-5})
        for (RgbTriple const& background :
             {RgbTriple{near, 0, 0}, RgbTriple{0, 1 - near, 0}, RgbTriple{1, 1, 1 + near}}) {
            SCOPED_TRACE(near);
            expectPlainPicks({2, 10, illuminant("D50"), {background}});
            expectPlainPicks({2, 10, illuminant("D65"), {background, background}});
        }
}

TEST(FarthestPoints, PicksNothingOnceEveryPointIsTaken) {
    FarthestPoints points(illuminant("D50"), RgbGrid(2), 8);
    for (int taken = 0; taken < 8; ++taken)
        EXPECT_TRUE(points.pick());
    EXPECT_FALSE(points.pick());
}

/// Of 2,146,689,000 points; one pass over them would take half a minute.
TEST(FarthestPoints, PicksFromTheLargestGrid) {
    constexpr int Steps = 1290;
    constexpr std::size_t Last = Steps - 1;
    auto const picks = picksExpecting(10, {Steps, 10, illuminant("D50"), {{0, 0, 0}}});
    EXPECT_EQ(picks[0], Last * Steps) << "green";
    EXPECT_EQ(picks[1], Last) << "blue";
    EXPECT_EQ(picks[2], Last * Steps * Steps) << "red";
}

/// Where all points tie, not all are looked at.
TEST(FarthestPoints, PicksFromTheLargestGridWhateverTheBackground) {
    for (double const background : {NotANumber, Infinity, 1e30}) {
        auto const picks = picksExpecting(
            3, {1290, 3, illuminant("D65"), {{background, 0, 0}, {0, background, 0}}});
        EXPECT_EQ(picks[0], 0) << background;
    }
}

TEST(SquaredDistance, AddsTheLightnessToTheFirstAxisAndThenTheSecond) {
    EXPECT_EQ(prism::squaredDistance(1.0, 1e8, 1.0), 1e16) << "each one is rounded away";
    EXPECT_EQ(prism::squaredDistance(1.0, 1.0, 1e8), 1e16 + 2.0);
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
