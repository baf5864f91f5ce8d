/// What the search for distinct colours takes for granted about the rough
/// conversion, walked over the largest grid.
#include "prism/tinctures/science/RoughLab.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "prism/tinctures/science/LabGrid.hpp"

namespace tests {
namespace {

using namespace prism;

constexpr int MostSteps = 1290;

std::vector<double> channelsOfTheLargestGrid() {
    RgbGrid const grid(MostSteps);
    std::vector<double> linear;
    for (int step = 0; step < MostSteps; ++step)
        linear.push_back(linearPercent(grid.channel(step)));
    return linear;
}

Quad all(double value) {
    return Quad{} + static_cast<float>(value);
}

QuadRgb roughly(Triple const& color) {
    return {all(color[0]), all(color[1]), all(color[2])};
}

class RoughLabUnder : public testing::TestWithParam<StandardIlluminant const*> {
protected:
    StandardIlluminant const& light = *GetParam();
    RoughLab const rough{light};
    std::vector<double> const linear = channelsOfTheLargestGrid();

    /// Each channel at all its steps, the two others at some.
    template <class Operation>
    void walk(Operation operation) {
        for (std::size_t channel = 0; channel < 3; ++channel)
            for (double const second : {0.0, 0.3, 1.0, 2.0, 10.0, 50.0, 100.0})
                for (double const third : {0.0, 0.3, 1.0, 2.0, 10.0, 50.0, 100.0})
                    for (double const first : linear) {
                        Triple color{second, second, third};
                        color[channel] = first;
                        color[(channel + 1) % 3] = second;
                        color[(channel + 2) % 3] = third;
                        operation(color);
                    }
    }

    void expectInBox(Triple const& color, Triple const& least, Triple const& greatest) {
        QuadLab const low = rough.leastCorner(roughly(least), roughly(greatest));
        QuadLab const high = rough.greatestCorner(roughly(least), roughly(greatest));
        LabPoint const point = linearToLab(light, color);
        bool const isInside = low.L[0] <= point.L && point.L <= high.L[0] && low.a[0] <= point.a &&
                              point.a <= high.a[0] && low.b[0] <= point.b && point.b <= high.b[0];
        if (!isInside)
            ADD_FAILURE() << color[0] << ' ' << color[1] << ' ' << color[2] << " is outside";
    }
};

TEST_P(RoughLabUnder, IsAtAQuarterOfItsBlurFromTheExactConversion) {
    double greatest = 0.0;
    walk([&](Triple const& color) {
        LabPoint const exact = linearToLab(light, color);
        QuadLab const point = rough(roughly(color));
        greatest = std::max(
            greatest, std::hypot(point.L[0] - exact.L, point.a[0] - exact.a, point.b[0] - exact.b));
    });
    RecordProperty("greatest error", std::to_string(greatest));
    EXPECT_LT(greatest, RoughLab::Blur / 4);
    EXPECT_GT(greatest, 0.0);
}

TEST_P(RoughLabUnder, BoxOfOneColourHoldsIt) {
    walk([&](Triple const& color) { expectInBox(color, color, color); });
}

TEST_P(RoughLabUnder, BoxesHoldTheColoursBetweenTheirCorners) {
    std::mt19937 random(1290);
    auto const step = [&](int first, int last) {
        return std::uniform_int_distribution(first, last)(random);
    };
    for (int round = 0; round < 100000; ++round) {
        int const edge = 1 << step(0, 10);
        Triple least, color, greatest;
        for (std::size_t channel = 0; channel < 3; ++channel) {
            int const first = step(0, round % 2 == 0 ? 150 : MostSteps - 1);  // half of them dark
            int const last = std::min(first + edge, MostSteps - 1);
            least[channel] = linear[static_cast<std::size_t>(first)];
            color[channel] = linear[static_cast<std::size_t>(step(first, last))];
            greatest[channel] = linear[static_cast<std::size_t>(last)];
        }
        expectInBox(color, least, greatest);
    }
}

/// The exact conversion itself, which no order of the library's roots is asked of.
TEST_P(RoughLabUnder, TheLibrarysRootsAreRightBeyondSixDigits) {
    double greatest = 0.0;
    walk([&](Triple const& color) {
        for (std::size_t row = 0; row < 3; ++row) {
            double t = 0.0;
            for (std::size_t channel = 0; channel < 3; ++channel)
                t += light.share(row, channel) * color[channel];
            greatest = std::max(greatest, std::fabs(std::pow(std::cbrt(t), 3) - t));
        }
    });
    RecordProperty("greatest error of a cube", std::to_string(greatest * 1e15) + "e-15");
    EXPECT_LT(greatest, 1e-14);
}

INSTANTIATE_TEST_SUITE_P(Lights, RoughLabUnder, testing::Values(&D50, &D65),
                         [](auto const& each) { return each.index == 0 ? "D50" : "D65"; });

TEST(LinearPercent, RisesFromStepToStepOfTheLargestGrid) {
    std::vector<double> const linear = channelsOfTheLargestGrid();
    for (std::size_t step = 1; step < linear.size(); ++step)
        EXPECT_GT(linear[step], linear[step - 1] * 1.0001) << step;
}

}  // namespace
}  // namespace tests
