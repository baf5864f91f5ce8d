/// What the host says and hears at load and unload.
#include "host/creators/VInitialization.hpp"

#include <gtest/gtest.h>

#include "host/creators/interface_token.hpp"
#include "runtime/lattice/PluginReports.hpp"
#include "tests/support/DiagnosticText.hpp"

namespace tests {
namespace {

using namespace Orlo;

TEST(InterfaceTokenText, IsTheNameOfTheMacroItself) {
    EXPECT_STREQ(InterfaceToken, "TELM_API_VERSION");
    EXPECT_EQ(sizeof InterfaceToken, 17u);
}

TEST(PluginReasons, HaveTheirNumbers) {
    EXPECT_EQ(VInitialization::ProcessAttach, 0);
    EXPECT_EQ(VInitialization::ProcessDetach, 1);
    EXPECT_EQ(VInitialization::ThreadAttach, 2);
    EXPECT_EQ(VInitialization::ThreadDetach, 3);
}

TEST(Compatibility, IsThatOfTheTokenUnlessTheHostHasAFixedAnswer) {
    VInitialization host;
    EXPECT_EQ(host.askedToken(), nullptr);
    EXPECT_EQ(host.IsCompatible("TELM_API_VERSION"), VInitialization::Compatible);
    EXPECT_STREQ(host.askedToken(), "TELM_API_VERSION");
    EXPECT_EQ(host.IsCompatible("TELM_API_2024_MAR_06"), VInitialization::Incompatible);
    EXPECT_EQ(host.IsCompatible(nullptr), VInitialization::Incompatible);
    EXPECT_EQ(VInitialization(42).IsCompatible("TELM_API_VERSION"), 42);
    EXPECT_EQ(VInitialization(0).IsCompatible("TELM_API_VERSION"), 0);
}

TEST(PluginReports, AreKeptUntilTheyAreTaken) {
    takePluginReports();
    DiagnosticText const text(100);
    VInitialization::initPlugin(VInitialization::ThreadAttach, "module", "token");
    auto const reports = takePluginReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].reason, VInitialization::ThreadAttach);
    EXPECT_STREQ(reports[0].moduleName, "module");
    EXPECT_STREQ(reports[0].token, "token");
    EXPECT_TRUE(takePluginReports().empty());
    EXPECT_EQ(text.text(), "VInitialization::initPlugin(2,module,token)\n");
}

}  // namespace
}  // namespace tests
