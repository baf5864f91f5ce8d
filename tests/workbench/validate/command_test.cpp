/// The command itself: what it prints, and how it ends.
#include <gmock/gmock.h>

#include <sstream>

#include "tests/workbench/validate/judged.hpp"
#include "workbench/common/files.hpp"
#include "workbench/validate/Test.hpp"

namespace tests {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(Validate, ListsEveryTestWithWhatTheContractSays) {
    Lines const lines = results({"validate", "--list"});
    std::vector<workbench::validate::Test> const tests = workbench::validate::allTests();
    ASSERT_EQ(lines.size(), tests.size());
    for (std::size_t i = 0; i < tests.size(); ++i)
        EXPECT_THAT(lines[i], AllOf(StartsWith(tests[i].name + " "), EndsWith(tests[i].contract)));
}

TEST(Validate, HasTestsWhoseNamesAreTheirOwnAndWhoseNeedsExist) {
    std::map<std::string, int> names;
    std::vector<workbench::validate::Test> const tests = workbench::validate::allTests();
    for (auto const& test : tests)
        EXPECT_EQ(++names[test.name], 1) << test.name;
    for (auto const& test : tests)
        for (std::string const& need : test.needs)
            EXPECT_TRUE(names.contains(need)) << test.name << " needs " << need;
}

/// The rows of the document that are about tests, in their order.
Lines documentedRows() {
    Lines rows;
    std::istringstream text(workbench::readFile(PRISM_SOURCE_DIR "/docs/validate.md"));
    for (std::string line; std::getline(text, line);)
        if (line.starts_with("| `") && line.substr(0, line.find('`', 3)).find('/') < line.size())
            rows.push_back(line);
    return rows;
}

TEST(Validate, IsDocumentedTestForTest) {
    Lines expected;
    for (auto const& test : workbench::validate::allTests())
        expected.push_back("| `" + test.name + "` | " + test.contract + " |");
    EXPECT_EQ(documentedRows(), expected);
}

TEST(Validate, TellsOfAFailureWhatWasSeenWhatTheContractSaysAndHowToSeeItAgain) {
    std::string const file = fileBeside("throwsAtUpdate.telm");
    ProcessResult const result =
        telmbench({"validate", file, "--quick", "--seed", "7", "--only", "cycle/publishes"});
    EXPECT_EQ(result.status, 1);
    Lines const lines = result.outLines();
    ASSERT_GE(lines.size(), 5U);
    EXPECT_THAT(lines[0], StartsWith("failed    cycle/publishes "));
    EXPECT_EQ(lines[1], "      seen:     Colormaps/Grey: it throws 'thrown at the update'");
    EXPECT_THAT(lines[2], StartsWith("      contract: An update that is asked for"));
    EXPECT_EQ(lines[3], "      again:    telmbench validate " + file +
                            " --only cycle/publishes --seed 7 --quick");
    EXPECT_EQ(lines.back(), "1 failed; seed 7");
    EXPECT_EQ(result.errLines(),
              Lines{"telmbench: the plug-in '" + file + "' does not keep the contract"});
}

TEST(Validate, SkipsWhatATestThatFailedWasNeededFor) {
    Lines const lines =
        telmbench({"validate", fileBeside("noExport.telm"), "--quick", "--only", "file"})
            .outLines();
    EXPECT_THAT(lines, Contains("      it needs file/export, which failed"));
}

TEST(Validate, RunsOneGroupAlone) {
    Judgement const result = judged("soundPlugin", {"--only", "catalogue"});
    EXPECT_EQ(result.status, 0);
    for (auto const& test : result.document["tests"])
        EXPECT_THAT(test["test"].get<std::string>(), StartsWith("catalogue/"));
}

TEST(Validate, NamesASeedOfItsOwnIfItIsGivenNone) {
    Lines const lines =
        results({"validate", fileBeside("soundPlugin.telm"), "--only", "catalogue/keys"});
    std::string const summary = "1 passed; seed ";
    ASSERT_THAT(lines.back(), StartsWith(summary));
    std::string const seed = lines.back().substr(summary.size());
    EXPECT_TRUE(!seed.empty() && seed.find_first_not_of("0123456789") == std::string::npos) << seed;
}

TEST(Validate, ShowsWhatThePluginHasPrinted) {
    ProcessResult const result =
        telmbench({"validate", fileBeside("talking_plugin.telm"), "--only", "file/quiet"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.outLines(), Contains("      | talk of the load"));
}

TEST(Validate, JudgesAFileThatIsNoLibrary) {
    ProcessResult const result =
        telmbench({"validate", fileBeside("") + "../CMakeCache.txt", "--only", "file"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.outLines(),
                Contains("      seen:     it is no 64-bit library of this system"));
}

TEST(Validate, RefusesAWrongCall) {
    struct {
        Lines arguments;
        char const* message;
    } const table[] = {
        {{"validate"}, "which plug-in?"},
        {{"validate", "nowhere.telm"}, "there is no file 'nowhere.telm' to judge"},
        {{"validate", fileBeside("soundPlugin.telm"), "--only", "file/exprot"},
         "did you mean 'file/export'"},
        {{"validate", fileBeside("soundPlugin.telm"), "--quick", "--soak"}, "--soak"},
        {{"validate", fileBeside("soundPlugin.telm"), "--limit", "0"}, "--limit"},
    };
    for (auto const& each : table) {
        ProcessResult const result = telmbench(each.arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.err, HasSubstr(each.message));
    }
}

}  // namespace
}  // namespace tests
