#include "prism/tinctures/science/timesTwoOverPi.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "tests/support/controlWord.hpp"

namespace prism {
namespace {

std::uint64_t bitsOf(double x) {
    return std::bit_cast<std::uint64_t>(x);
}

TEST(TimesTwoOverPi, KeepsZerosInfinitiesAndNaN) {
    double const infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(bitsOf(timesTwoOverPi(0.0)), bitsOf(0.0));
    EXPECT_EQ(bitsOf(timesTwoOverPi(-0.0)), bitsOf(-0.0));
    EXPECT_EQ(timesTwoOverPi(infinity), infinity);
    EXPECT_EQ(timesTwoOverPi(-infinity), -infinity);
    EXPECT_TRUE(std::isnan(timesTwoOverPi(std::nan(""))));
}

/// Products worked out with integers of any size. The first two round another
/// way than one rounding to 53 bits does.
TEST(TimesTwoOverPi, RoundsToSixtyFourBitsAndThenToFiftyThree) {
    EXPECT_EQ(timesTwoOverPi(0x1.63f577b0af96cp-1), 0x1.c5388c7e6d090p-2);
    EXPECT_EQ(timesTwoOverPi(0x1.84f49602cf689p+0), 0x1.ef3bc108e1838p-1);
    EXPECT_EQ(timesTwoOverPi(0x1.0000000000000p+0), 0x1.45f306dc9c883p-1);
    EXPECT_EQ(timesTwoOverPi(0x1.921fb54442d18p-1), 0x1.0000000000000p-1);
    EXPECT_EQ(timesTwoOverPi(0x1.921fb54442d18p+0), 0x1.0000000000000p+0);
    EXPECT_EQ(timesTwoOverPi(0x0.0000000000001p-1022), 0x0.0000000000001p-1022);
    EXPECT_EQ(timesTwoOverPi(0x0.0000000000002p-1022), 0x0.0000000000001p-1022);
    EXPECT_EQ(timesTwoOverPi(0x1.0000000000000p-1022), 0x0.a2f9836e4e441p-1022);
    EXPECT_EQ(timesTwoOverPi(0x1.92aeea45aaee0p-1022), 0x1.005b2b1ef8149p-1022);
    EXPECT_EQ(timesTwoOverPi(0x1.fffffffffffffp+1023), 0x1.45f306dc9c882p+1023);
}

TEST(TimesTwoOverPi, IsNeverAboveOneForAnAngle) {
    EXPECT_EQ(timesTwoOverPi(std::atan(std::numeric_limits<double>::infinity())), 1.0);
    EXPECT_EQ(timesTwoOverPi(std::atan(-std::numeric_limits<double>::infinity())), -1.0);
}

#if defined(__x86_64__) && LDBL_MANT_DIG == 64

/// The processor's own product. The control word must ask for 64 bits.
double byProcessor(double x) {
    constexpr long double twoOverPi = 0.636619772367581343075535053490057448L;
    long double const volatile factor = x;
    long double const volatile product = factor * twoOverPi;
    return static_cast<double>(product);
}

double roundedOnce(double x) {
    tests::PrecisionOfExtended const precision(tests::PrecisionOfExtended::Double);
    return byProcessor(x);
}

class EqualsTheProcessor : public testing::Test {
protected:
    void expect(double x) {
        if (bitsOf(timesTwoOverPi(x)) != bitsOf(byProcessor(x)))
            ADD_FAILURE() << std::hexfloat << x << " gives " << timesTwoOverPi(x)
                          << " and the processor gives " << byProcessor(x);
    }

    std::mt19937_64 random_{1};
    tests::PrecisionOfExtended const precision_{tests::PrecisionOfExtended::Extended};
};

TEST_F(EqualsTheProcessor, ForAngles) {
    std::uniform_real_distribution<double> angle(-1.5707963267948966, 1.5707963267948966);
    int roundedTwice = 0;
    for (int i = 0; i < 2'000'000 && !HasFailure(); ++i) {
        double const x = angle(random_);
        expect(x);
        if (i < 100'000 && timesTwoOverPi(x) != roundedOnce(x))
            ++roundedTwice;
    }
    EXPECT_GT(roundedTwice, 5) << "the cases in which one rounding would give another double";
}

TEST_F(EqualsTheProcessor, ForNumbersOfAllMagnitudes) {
    for (int i = 0; i < 2'000'000 && !HasFailure(); ++i) {
        auto const x = std::bit_cast<double>(random_());
        if (!std::isnan(x))
            expect(x);
    }
}

/// Results near the least normal number, subnormal ones, and the least of all.
TEST_F(EqualsTheProcessor, WhereResultsAreSubnormal) {
    for (int i = 0; i < 500'000 && !HasFailure(); ++i) {
        expect(std::bit_cast<double>(random_() % (std::uint64_t{3} << 52)));
        expect(std::bit_cast<double>((random_() >> 12) >> (random_() % 52)));
    }
    for (std::uint64_t bits = 0; bits < 1000; ++bits)
        expect(std::bit_cast<double>(bits));
}

TEST_F(EqualsTheProcessor, AtPowersOfTwoAndTheirNeighbours) {
    for (int exponent = -1074; exponent < 1024; ++exponent)
        for (double const sign : {1.0, -1.0}) {
            double const x = std::ldexp(sign, exponent);
            expect(x);
            expect(std::nextafter(x, 0.0));
            expect(std::nextafter(x, 2 * x));
        }
}

/// Mantissas of few bits give products whose rest is exactly or nearly a half.
TEST_F(EqualsTheProcessor, ForShortMantissas) {
    for (int i = 1; i < 500'000 && !HasFailure(); ++i)
        expect(i);
}

TEST(TimesTwoOverPi, DoesNotDependOnTheControlWord) {
    std::mt19937_64 random(2);
    using Precision = tests::PrecisionOfExtended;
    for (int i = 0; i < 100'000 && !testing::Test::HasFailure(); ++i) {
        auto const x = std::bit_cast<double>(random() & 0xBFFF'FFFF'FFFF'FFFF);
        double const expected = timesTwoOverPi(x);
        for (auto const bits : {Precision::Single, Precision::Double, Precision::Extended}) {
            Precision const precision(bits);
            EXPECT_EQ(bitsOf(timesTwoOverPi(x)), bitsOf(expected)) << x;
        }
    }
}

#endif

}  // namespace
}  // namespace prism
