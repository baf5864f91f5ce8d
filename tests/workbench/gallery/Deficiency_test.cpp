#include "workbench/gallery/Deficiency.hpp"

#include <gtest/gtest.h>

#include "workbench/picture/Image.hpp"

namespace {

using namespace workbench;

constexpr Deficiency all[] = {Deficiency::Protan, Deficiency::Deutan, Deficiency::Tritan};

Rgba8 pixelSeenWith(Deficiency deficiency, Tessar::rgba_float_t const& color) {
    return opaque(colorOf(seenWith(deficiency, lightOf(color))));
}

/// Reds, greens and blues look like the columns of the matrices.
TEST(Deficiency, TheLightsOfTheScreenAreTheColumnsOfTheMatrices) {
    struct Case {
        Deficiency deficiency;
        Light red, green, blue;
    };
    Case const cases[] = {
        {Deficiency::Protan,
         {0.152286, 0.114503, -0.003882},
         {1.052583, 0.786281, -0.048116},
         {-0.204868, 0.099216, 1.051998}},
        {Deficiency::Deutan,
         {0.367322, 0.280085, -0.011820},
         {0.860646, 0.672501, 0.042940},
         {-0.227968, 0.047413, 0.968881}},
        {Deficiency::Tritan,
         {1.255528, -0.078411, 0.004733},
         {-0.076749, 0.930809, 0.691367},
         {-0.178779, 0.147602, 0.303900}},
    };
    auto const expectLight = [](Light const& actual, Light const& expected) {
        EXPECT_EQ(actual.red, expected.red);
        EXPECT_EQ(actual.green, expected.green);
        EXPECT_EQ(actual.blue, expected.blue);
    };
    for (auto const& [deficiency, red, green, blue] : cases) {
        expectLight(seenWith(deficiency, {1, 0, 0}), red);
        expectLight(seenWith(deficiency, {0, 1, 0}), green);
        expectLight(seenWith(deficiency, {0, 0, 1}), blue);
    }
}

TEST(Deficiency, EveryGreyStaysWithinRounding) {
    for (Deficiency const deficiency : all)
        for (int i = 0; i <= 255; ++i) {
            float const grey = static_cast<float>(i) / 255.0F;
            Rgba8 const seen = pixelSeenWith(deficiency, {grey, grey, grey, 1});
            for (std::size_t channel = 0; channel < 3; ++channel)
                EXPECT_EQ(seen[channel], i) << static_cast<int>(deficiency);
        }
}

TEST(Deficiency, ColorsAreMixedAsLight) {
    EXPECT_EQ(pixelSeenWith(Deficiency::Protan, {1, 0, 0, 1}), (Rgba8{109, 95, 0, 255}));
    EXPECT_EQ(pixelSeenWith(Deficiency::Deutan, {1, 0, 0, 1}), (Rgba8{163, 144, 0, 255}));
    EXPECT_EQ(pixelSeenWith(Deficiency::Tritan, {1, 0, 0, 1}), (Rgba8{255, 0, 15, 255}));
    EXPECT_EQ(pixelSeenWith(Deficiency::Tritan, {0, 0, 1, 1}), (Rgba8{0, 107, 150, 255}));
}

/// What is told apart by red and green alone comes close together.
TEST(Deficiency, RedAndGreenComeTogetherWithoutTheirCones) {
    auto const hueDistance = [](Light const& a, Light const& b) {
        return std::abs(a.red / (a.red + a.green) - b.red / (b.red + b.green));
    };
    Light const red{0.5, 0.05, 0.0};
    Light const green{0.05, 0.5, 0.0};
    double const normal = hueDistance(red, green);
    for (Deficiency const deficiency : {Deficiency::Protan, Deficiency::Deutan})
        EXPECT_LT(hueDistance(seenWith(deficiency, red), seenWith(deficiency, green)),
                  0.05 * normal);
    EXPECT_GT(hueDistance(seenWith(Deficiency::Tritan, red), seenWith(Deficiency::Tritan, green)),
              0.8 * normal);
}

}  // namespace
