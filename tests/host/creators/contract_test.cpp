/// What the entries of the plug-in pass to the host beside their properties.
#include "host/creators/VCreatorBase.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/objects.hpp"

namespace tests {
namespace {

using namespace Orlo;

class PluginEntries : public PluginTest {};

TEST_F(PluginEntries, PassTheInterfaceTokenUnexpanded) {
    ASSERT_EQ(catalogue().size(), 21u);
    for (WeakCreatorPtr const& creator : catalogue())
        EXPECT_STREQ(creator->token(), "TELM_API_VERSION") << creator->keyname("/");
}

TEST_F(PluginEntries, MakeObjectsOfKindZero) {
    for (WeakCreatorPtr const& creator : catalogue())
        EXPECT_EQ(create(creator->keyname("/"))->kind(), 0) << creator->keyname("/");
}

TEST_F(PluginEntries, SetADescriptionThoughItBeEmptyOrNoneAtAll) {
    WeakCreatorPtr const doppler = findCreator("Colormaps/DopplerMap");
    EXPECT_TRUE(doppler->isSet(VCreatorPropertyElements::Description));
    EXPECT_EQ(doppler->get(VCreatorPropertyElements::Description), "");
    WeakCreatorPtr const glow = findCreator("Colormaps/Glow");
    EXPECT_FALSE(glow->isSet(VCreatorPropertyElements::Description));
}

}  // namespace
}  // namespace tests
