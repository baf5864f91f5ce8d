/// The Elbe scheme of point classes.
#include <gtest/gtest.h>

#include <limits>

#include "runtime/lattice/Catalogue.hpp"
#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Tiny = std::numeric_limits<double>::denorm_min();

std::vector<Tessar::rgba_float_t> table() {
    std::vector<Tessar::rgba_float_t> rows(67);
    rows[0] = {1, 0.51373, 0.06667, 0};
    rows[2] = {0.56078, 0.65098, 0.15686, 0};
    rows[9] = {0.24706, 0.76078, 0.82353, 0};
    rows[20] = {0.81961, 0.25098, 0.08627, 0};
    rows[25] = {0.61569, 0.17255, 0.04706, 0};
    rows[26] = {0.82745, 0.08627, 0.35294, 0};
    rows[29] = {0.65098, 0.09804, 0.62353, 0};
    rows[30] = {0.16863, 0.52549, 0.79608, 0};
    rows[31] = {0.03529, 0.68627, 0.4, 0};
    return rows;
}

Tessar::rgba_float_t const ClassZero{1, 0.51373, 0.06667, 0};
Tessar::rgba_float_t const Empty{0, 0, 0, 0};

DescribedMap const described{{
    .name = "TulElbeColorScheme",
    .creator = {.order = 0,
                .preferences = {"LidarTul"},
                .description = "Provides a color map with Tul Lass classification for points.",
                .tags = "General;Tidewatch",
                .source = "prism/tinctures/TulElbeColorScheme"},
    .parameters = {},
    .size = 67,
    .cycle = {},
    .help = {.shortText = "TulLass Color Scheme"},
    .lookups = rowsOf(table()) +
               std::vector<LookupRow>{
                   {"zero is row 0", {}, 0.0, ClassZero},
                   {"1/67 is row 1, which is empty", {}, 1.0 / 67.0, Empty},
                   {"a half is row 34, which is empty", {}, 0.5, Empty},
                   {"one is 67.5, limited to row 66, which is empty", {}, 1.0, Empty},
                   {"just below zero truncates to row 0", {}, -0.49 / 67.0, ClassZero},
                   {"the smallest negative number is row 0", {}, -Tiny, ClassZero},
                   {"far below zero is limited to row 0", {}, -3.0, ClassZero},
                   {"far above one is limited to row 66", {}, 7.0, Empty},
                   {"no number is row 0", {}, NotANumber, ClassZero},
                   {"beyond 32 bits upward is row 0", {}, 1e300, ClassZero},
                   {"beyond 32 bits downward is row 0", {}, -1e300, ClassZero},
                   {"infinity is row 0", {}, Infinity, ClassZero},
                   {"negative infinity is row 0", {}, -Infinity, ClassZero},
               },
}};

// --- What both schemes have in common

class TulSchemes : public PluginTest {
protected:
    std::string const elbe_ = "Colormaps/TulElbeColorScheme";
    std::string const lass_ = "Colormaps/TulLassColorScheme";
};

TEST_F(TulSchemes, KeepTheirMapOverTwoUpdatesWithALaterTimeStamp) {
    for (std::string const& key : {elbe_, lass_}) {
        Orlo::ObjectPtr const object = create(key);
        Orlo::PoolPtr const pool = makePool();
        forceUpdate(*object, pool);
        Orlo::ColormapPtr const first = mapOf(*object, pool);
        auto const age = first->age();
        forceUpdate(*object, pool);
        EXPECT_EQ(mapOf(*object, pool).get(), first.get());
        EXPECT_GT(first->age(), age);
    }
}

TEST_F(TulSchemes, BothCallThemselvesLassForEveryHelpType) {
    for (std::string const& key : {elbe_, lass_})
        for (int const type : {0, 1, 2, 3})
            EXPECT_EQ(create(key)->help(static_cast<Orlo::VObject::HelpType>(type)),
                      "TulLass Color Scheme");
}

TEST_F(TulSchemes, DifferInNothingButTableAndName) {
    auto const elbe = Orlo::findCreator(elbe_), lass = Orlo::findCreator(lass_);
    for (unsigned key = 0; key < Orlo::VCreatorPropertyElements::KeyCount; ++key) {
        auto const which = static_cast<Orlo::VCreatorPropertyElements::Key>(key);
        bool const named = key == Orlo::VCreatorPropertyElements::Name ||
                           key == Orlo::VCreatorPropertyElements::Source;
        EXPECT_EQ(elbe->get(which) != lass->get(which), named) << "key " << key;
    }
    EXPECT_EQ(elbe->orderNumber(), lass->orderNumber());
    EXPECT_EQ(elbe->preferences()->words(), lass->preferences()->words());
    Orlo::ObjectPtr const one = create(elbe_), other = create(lass_);
    EXPECT_EQ(one->slots().size(), other->slots().size());
    Orlo::ColormapPtr const map = update(*one, makePool()), second = update(*other, makePool());
    EXPECT_EQ(map->getSize(), second->getSize());
    EXPECT_FALSE(map->getColor(0) == second->getColor(0));
}

}  // namespace
}  // namespace tests
