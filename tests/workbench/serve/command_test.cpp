/// The command that makes the present picture.
#include "workbench/serve/command.hpp"

#include "tests/support/Process.hpp"
#include "tests/workbench/serve/StudioTest.hpp"
#include "workbench/common/files.hpp"
#include "workbench/picture/png.hpp"

namespace workbench {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

TEST(ShellWords, AreQuotedWhereAShellWouldTakeThemApart) {
    struct {
        char const* text;
        char const* word;
    } const table[] = {
        {"plain.telm", "plain.telm"}, {"a/b-c_d.1", "a/b-c_d.1"}, {"", "''"},
        {"two words", "'two words'"}, {"$HOME", "'$HOME'"},       {"it's", "'it'\\''s'"},
        {"(1,1,1,1)", "'(1,1,1,1)'"}, {"a\nb", "'a\nb'"},         {"a{b}", "'a{b}'"},
        {"-inverse", "-inverse"},     {"x;y", "'x;y'"},           {"~", "'~'"},
        {"\xc3\xa4", "'\xc3\xa4'"},
    };
    for (auto const& each : table)
        EXPECT_EQ(shellWord(each.text), each.word);
}

using Command = StudioTest;

TEST_F(Command, NamesTheFileAndNoMoreAtFirst) {
    EXPECT_EQ(studio_.command(), "telmbench run folder/small.telm -o picture.png");
}

TEST_F(Command, HasASettingForEachValueThatIsAnother) {
    edit("{'do':'set','object':'Slice','name':'transparency','text':'1'}");
    edit("{'do':'set','object':'Camera','name':'zoom','context':'Viewer1','text':'30'}");
    edit("{'do':'move','object':'Camera','x':1,'y':2}");
    EXPECT_EQ(studio_.command(),
              "telmbench run folder/small.telm --set 'Camera.zoom{Viewer1}=30' --set "
              "Slice.transparency=1 -o picture.png");
}

TEST_F(Command, SetsWhatWasResetToItsDefault) {
    edit("{'do':'reset','object':'Slice','name':'transparency'}");
    EXPECT_THAT(studio_.command(), HasSubstr(" --set Slice.transparency=1 "));
}

TEST_F(Command, CannotMakeNodesOrConnections) {
    edit("{'do':'disconnect','object':'Legend','input':'colormap'}");
    EXPECT_THROW(studio_.command(), Conflict);
    edit("{'do':'undo'}");
    EXPECT_THAT(studio_.command(), EndsWith("small.telm -o picture.png"));
}

/// The settings of a command line, its words without quotes.
std::vector<std::string> settingsIn(std::string line) {
    std::vector<std::string> settings;
    for (std::size_t at = 0; (at = line.find("--set ", at)) != std::string::npos;) {
        at += 6;
        bool const isQuoted = line[at] == '\'';
        std::size_t const end = isQuoted ? line.find('\'', at + 1) : line.find(' ', at);
        settings.push_back(line.substr(at + isQuoted, end - at - isQuoted));
        at = end;
    }
    return settings;
}

TEST_F(Command, MakesTheVeryPictureThatIsShown) {
    tests::TemporaryFolder const folder;
    writeFile(folder / "small.telm", SmallNetwork);
    edit("{'do':'set','object':'Map','name':'startcolor','text':'(0,0,1,1)'}");
    edit("{'do':'set','object':'Camera','name':'zoom','context':'Viewer1','text':'30'}");
    edit("{'do':'reset','object':'Slice','name':'transparency'}");
    std::vector<std::string> arguments{"run", (folder / "small.telm").string()};
    for (std::string const& setting : settingsIn(studio_.command())) {
        arguments.push_back("--set");
        arguments.push_back(setting);
    }
    arguments.insert(arguments.end(), {"-o", (folder / "picture.png").string()});
    tests::ProcessResult const result =
        tests::runProcess(tests::programBeside("telmbench"), arguments);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(readFile(folder / "picture.png"), encodePng(*studio_.picture("Viewer1")));
}

}  // namespace
}  // namespace workbench
