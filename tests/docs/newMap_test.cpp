/// The colour map that docs/new-map.md shows, built as it stands there, loaded
/// and used as any other.
#include <gtest/gtest.h>

#include <limits>

#include "runtime/lattice/Catalogue.hpp"
#include "tests/support/objects.hpp"
#include "workbench/session/PluginFile.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr char Key[] = "Colormaps/Threshold";
rgba_float_t const Black(0, 0, 0, 1);
rgba_float_t const White(1, 1, 1, 1);

class NewMap : public testing::Test {
protected:
    Orlo::VInitialization host_;
    workbench::PluginFile plugin_{
        workbench::pluginBesideProgram().replace_filename("sample_map.telm"), host_};
};

TEST_F(NewMap, IsTheOnlyEntryOfItsPlugin) {
    ASSERT_EQ(Orlo::catalogue().size(), 1U);
    EXPECT_EQ(Orlo::catalogue().front()->keyname("/"), Key);
    EXPECT_EQ(Orlo::inputCreators(typeid(Orlo::ColormapPtr)).size(), 1U);
}

TEST_F(NewMap, LooksColoursUp) {
    Orlo::ObjectPtr const object = create(Key);
    Orlo::ColormapPtr const map = update(*object, makePool());
    ASSERT_TRUE(map);
    EXPECT_EQ(map->getColor(0.49), Black);
    EXPECT_EQ(map->getColor(0.5), White);
    EXPECT_EQ(map->getColor(std::numeric_limits<double>::quiet_NaN()), Black);
}

TEST_F(NewMap, FollowsItsParametersInPlace) {
    Orlo::ObjectPtr const object = create(Key);
    Orlo::PoolPtr const pool = makePool();
    Orlo::ColormapPtr const map = update(*object, pool);
    set(*object, "level", "0.25");
    set(*object, "color", "(1,0,0,1)");
    EXPECT_EQ(update(*object, pool), map);
    EXPECT_EQ(map->getColor(0.3), rgba_float_t(1, 0, 0, 1));
}

TEST(NewMapUnloaded, LeavesNothingInTheCatalogue) {
    Orlo::VInitialization host;
    {
        workbench::PluginFile const plugin(
            workbench::pluginBesideProgram().replace_filename("sample_map.telm"), host);
        ASSERT_TRUE(Orlo::findCreator(Key));
    }
    EXPECT_TRUE(Orlo::catalogue().empty());
}

}  // namespace
}  // namespace tests
