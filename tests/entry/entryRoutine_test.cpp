/// The entry routine: which reason leads to which call.
#include "entry/EntryRoutine.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <thread>

#include "runtime/lattice/PluginReports.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

using namespace Orlo;

struct ReasonRow {
    std::string name;
    std::uint32_t loader;
    int told;
};

std::vector<ReasonRow> const Reasons{
    {"ProcessDetach", 0, 1},
    {"ProcessAttach", 1, 0},
    {"ThreadAttach", 2, 2},
    {"ThreadDetach", 3, 3},
};

class EntryReason : public testing::TestWithParam<ReasonRow> {};

TEST_P(EntryReason, IsToldToTheHostByItsOwnNumber) {
    takePluginReports();
    EXPECT_EQ(prism::entryRoutine(nullptr, GetParam().loader, nullptr), 1);
    auto const reports = takePluginReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(static_cast<int>(reports[0].reason), GetParam().told);
    EXPECT_STREQ(reports[0].moduleName, "prism_tinctures");
    EXPECT_STREQ(reports[0].token, "TELM_API_VERSION");
}

INSTANTIATE_TEST_SUITE_P(Table, EntryReason, testing::ValuesIn(Reasons),
                         [](auto const& row) { return row.param.name; });

TEST(EntryRoutine, MakesNoCallForAnyOtherReasonAndStillGives1) {
    takePluginReports();
    for (std::uint32_t const reason : {4u, 5u, 100u, 0x80000000u, 0xffffffffu})
        EXPECT_EQ(prism::entryRoutine(nullptr, reason, nullptr), 1) << reason;
    EXPECT_TRUE(takePluginReports().empty());
}

TEST(EntryRoutine, ReadsNeitherHandleNorReservedPointer) {
    auto* const nowhere = reinterpret_cast<void*>(std::uintptr_t{1});
    EXPECT_EQ(prism::entryRoutine(nowhere, 2, nowhere), 1);
    EXPECT_EQ(takePluginReports().size(), 1u);
}

TEST(EntryRoutine, PassesTheSameConstantTextsForAllReasons) {
    takePluginReports();
    for (ReasonRow const& row : Reasons)
        prism::entryRoutine(nullptr, row.loader, nullptr);
    auto const reports = takePluginReports();
    ASSERT_EQ(reports.size(), 4u);
    for (PluginReport const& report : reports) {
        EXPECT_EQ(static_cast<void const*>(report.moduleName), reports[0].moduleName);
        EXPECT_EQ(static_cast<void const*>(report.token), reports[0].token);
    }
}

using LoadedPlugin = PluginTest;

TEST_F(LoadedPlugin, ReportsWhatTheSystemsLoaderTellsOfThreads) {
    takePluginReports();
    std::thread([] {}).join();
    auto const reports = takePluginReports();
#if defined(_WIN32)
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].reason, VInitialization::ThreadAttach);
    EXPECT_EQ(reports[1].reason, VInitialization::ThreadDetach);
    for (PluginReport const& report : reports) {
        EXPECT_STREQ(report.moduleName, "prism_tinctures");
        EXPECT_STREQ(report.token, "TELM_API_VERSION");
    }
#else
    EXPECT_TRUE(reports.empty()) << "this system's loader tells nobody of threads";
#endif
}

}  // namespace
}  // namespace tests
