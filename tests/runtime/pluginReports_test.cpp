/// What plug-ins report while nobody asks.
#include "runtime/lattice/PluginReports.hpp"

#include <gtest/gtest.h>

#include "host/creators/VInitialization.hpp"
#include "host/creators/interface_token.hpp"

namespace tests {
namespace {

using namespace Orlo;

TEST(PluginReports, ThatNobodyTakesEndAtTenThousand) {
    takePluginReports();
    for (int i = 0; i < 10001; ++i)
        VInitialization::initPlugin(VInitialization::ThreadAttach, "many", InterfaceToken);
    EXPECT_EQ(takePluginReports().size(), 10000u);
    VInitialization::initPlugin(VInitialization::ThreadAttach, "more", InterfaceToken);
    EXPECT_EQ(takePluginReports().size(), 1u) << "once they are taken, others are noted";
}

}  // namespace
}  // namespace tests
