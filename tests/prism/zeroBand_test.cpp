/// The edge of ZeroInfinity's band, which the last bit of a product decides.
#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <random>

#include "prism/tinctures/science/timesTwoOverPi.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/controlWord.hpp"
#include "tests/support/objects.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

/// The shortest text that reads back to the number.
std::string shortest(double x) {
    std::array<char, 32> text;
    auto* const end = std::to_chars(text.data(), text.data() + text.size(), x).ptr;
    return std::string(text.data(), end);
}

double squeezed(double v) {
    return prism::timesTwoOverPi(std::atan(v));
}

class ZeroBand : public PluginTest {
protected:
    /// Whether a lookup finds the zero colour, with the band that wide.
    static bool holds(double scalar, double epsilon) {
        Orlo::ObjectPtr const object = create("Colormaps/ZeroInfinity");
        set(*object, "epsilon", shortest(epsilon));
        return update(*object, makePool())->getColor(scalar) == rgba_float_t(1, 1, 1, 1);
    }

    static void expectEdge(double scalar) {
        double const edge = std::fabs(squeezed(scalar));
        EXPECT_FALSE(holds(scalar, edge)) << scalar << " lies on the edge, and so outside";
        EXPECT_TRUE(holds(scalar, std::nextafter(edge, 2.0))) << scalar << " lies inside";
    }
};

TEST_F(ZeroBand, LeavesOutBothOfItsEdges) {
    for (double const scalar : {1e-300, 0.1, 0.5, 0.7, 1.0, 3.0, 1e10}) {
        expectEdge(scalar);
        expectEdge(-scalar);
    }
}

#if defined(__x86_64__)

double byProcessor(double angle) {
    constexpr long double twoOverPi = 0.636619772367581343075535053490057448L;
    long double const volatile factor = angle;
    long double const volatile product = factor * twoOverPi;
    return static_cast<double>(product);
}

/// Scalars whose squeezed values differ where the x87 rounds to 53 bits.
std::vector<double> tellingScalars() {
    std::vector<double> found;
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> scalar(-4.0, 4.0);
    PrecisionOfExtended const precision(PrecisionOfExtended::Double);
    while (found.size() < 40) {
        double const x = scalar(random);
        double const angle = std::atan(x);
        if (byProcessor(angle) != prism::timesTwoOverPi(angle))
            found.push_back(x);
    }
    return found;
}

TEST_F(ZeroBand, DoesNotDependOnTheControlWordOfTheThread) {
    for (double const scalar : tellingScalars())
        for (auto const bits : {PrecisionOfExtended::Single, PrecisionOfExtended::Double,
                                PrecisionOfExtended::Extended}) {
            PrecisionOfExtended const precision(bits);
            expectEdge(scalar);
        }
}

#endif

}  // namespace
}  // namespace tests
