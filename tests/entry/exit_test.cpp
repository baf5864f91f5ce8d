/// The end of a process that has not unloaded the plug-in.
#include <gmock/gmock.h>

#include <algorithm>

#include "runtime/lattice/Catalogue.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/Process.hpp"

namespace tests {
namespace {

class ProcessExit : public PluginTest {
protected:
    ProcessResult const child_ = runProcess(programBeside("exit_without_unload"), {});

    /// The child's lines up to the end of its `main`, and behind it.
    std::vector<std::string> lines(bool behindMain) const {
        auto const all = child_.outLines();
        auto const end = std::ranges::find(all, "main ends");
        EXPECT_NE(end, all.end());
        return behindMain ? std::vector<std::string>(end == all.end() ? end : end + 1, all.end())
                          : std::vector<std::string>(all.begin(), end);
    }
};

TEST_F(ProcessExit, IsAnOrdinaryOne) {
    EXPECT_EQ(child_.status, 0);
    EXPECT_EQ(child_.err, "");
}

TEST_F(ProcessExit, FollowsALoadThatTellsTheCreatorsThenTheAttach) {
    std::vector<std::string> expected;
    for (auto const& creator : Orlo::catalogue())
        expected.push_back("VCreator::VCreator(" + creator->keyname("/") + "," +
                           std::to_string(creator->orderNumber()) + ")");
    expected.emplace_back("VInitialization::initPlugin(0,prism_tinctures,TELM_API_VERSION)");
    for (std::size_t i = 0; i < Orlo::catalogue().size(); ++i) {
        expected.emplace_back("VCreator::create(held)");
        expected.emplace_back("VCreator::create(held) got derived object");
    }
    EXPECT_EQ(lines(false), expected);
}

TEST_F(ProcessExit, TellsTheDetachFirstAndThenTearsDownInReverse) {
    std::vector<std::string> expected;
    for (auto const& creator : Orlo::catalogue())
        expected.push_back("VCreatorBase::~VCreatorBase(" + creator->keyname("/") + "," +
                           std::to_string(creator->orderNumber()) + ")");
    expected.emplace_back("VInitialization::initPlugin(1,prism_tinctures,TELM_API_VERSION)");
    std::ranges::reverse(expected);
    EXPECT_EQ(lines(true), expected);
}

}  // namespace
}  // namespace tests
