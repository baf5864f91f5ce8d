/// `telmbench run` as people call it: results, messages and exit status.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Process.hpp"
#include "workbench/common/files.hpp"

namespace workbench {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr char PngBegin[] = "\x89PNG\r\n\x1a\n";

std::string exampleFile(char const* name) {
    return (std::filesystem::path(PRISM_EXAMPLES) / name).string();
}

class Run : public ::testing::Test {
protected:
    tests::ProcessResult run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "run");
        return tests::runProcess(tests::programBeside("telmbench"), arguments);
    }

    std::string in(char const* name) const { return (folder_ / name).string(); }

    /// A file of the folder that holds the text.
    std::string file(char const* name, std::string const& text) {
        writeFile(folder_ / name, text);
        return in(name);
    }

    std::string const first_ = exampleFile("HypsometricSlice.telm");
    std::string const second_ = exampleFile("UserColorsRuler.telm");
    tests::TemporaryFolder folder_;
};

TEST_F(Run, DrawsTheFirstExampleInTheSizeOfItsViewer) {
    tests::ProcessResult const result = run({first_, "-o", in("a.png")});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.outLines(), IsEmpty());
    EXPECT_THAT(result.errLines(), IsEmpty()) << "no progress in a pipe";
    std::string const png = readFile(folder_ / "a.png");
    EXPECT_THAT(png, StartsWith(PngBegin));
    EXPECT_EQ(png.substr(16, 8), std::string("\0\0\x04\x16\0\0\x02\x8a", 8)) << "1046 x 650";
    EXPECT_THAT(folder_.names(), ElementsAre("a.png"));
}

TEST_F(Run, DrawsTheViewerThatIsNamed) {
    EXPECT_EQ(run({first_, "--viewer", "Viewer2", "-o", in("a.png")}).status, 0);
    EXPECT_EQ(readFile(folder_ / "a.png").substr(16, 8), std::string("\0\0\0\x64\0\0\0\x1e", 8))
        << "100 x 30";
}

TEST_F(Run, DrawsTheSamePictureTwice) {
    EXPECT_EQ(run({first_, "-o", in("a.png")}).status, 0);
    EXPECT_EQ(run({first_, "-o", in("b.png")}).status, 0);
    EXPECT_EQ(readFile(folder_ / "a.png"), readFile(folder_ / "b.png"));
}

TEST_F(Run, SavesBothExamplesByteForByte) {
    EXPECT_EQ(run({first_, "--save", in("1.telm")}).status, 0);
    EXPECT_EQ(readFile(folder_ / "1.telm"), readFile(first_));
    EXPECT_EQ(run({second_, "--save", in("2.telm")}).status, 1);
    EXPECT_EQ(readFile(folder_ / "2.telm"), readFile(second_));
}

TEST_F(Run, ReportsTheMissingEntryOfTheSecondExampleOnceAndDrawsTheRest) {
    tests::ProcessResult const result = run({second_, "-o", in("a.png")});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(
        result.errLines(),
        ElementsAre(
            AllOf(StartsWith("telmbench: " + second_ + ":"),
                  EndsWith(": 'Colormaps/UserColors UserColors': the catalogue has no entry "
                           "'Colormaps/UserColors'; a plug-in that provides it must be loaded")),
            HasSubstr("further lines concern 'UserColors', which could not be created"),
            "telmbench: parts of '" + second_ + "' could not be carried out; all the rest was"));
    EXPECT_THAT(readFile(folder_ / "a.png"), StartsWith(PngBegin));
}

TEST_F(Run, ChangesExactlyTheLinesOfTheSettings) {
    EXPECT_EQ(run({first_, "--set", "Camera.zoom{Viewer1}=60", "--set", "FieldSlice.mode=Discrete",
                   "--save", in("a.telm"), "-o", in("a.png")})
                  .status,
              0);
    std::string expected = readFile(first_);
    auto const replace = [&](std::string const& from, std::string const& to) {
        std::size_t const at = expected.find(from);
        ASSERT_NE(at, std::string::npos);
        expected.replace(at, from.size(), to);
    };
    replace("Camera.zoom{Viewer1}=\"45\"", "Camera.zoom{Viewer1}=\"60\"");
    replace("\"Interpolated{Discrete}", "\"Discrete{Discrete}");
    EXPECT_EQ(readFile(folder_ / "a.telm"), expected);
    EXPECT_EQ(run({first_, "-o", in("plain.png")}).status, 0);
    EXPECT_NE(readFile(folder_ / "a.png"), readFile(folder_ / "plain.png"));
    EXPECT_EQ(run({in("a.telm"), "-o", in("again.png")}).status, 0);
    EXPECT_EQ(readFile(folder_ / "a.png"), readFile(folder_ / "again.png"));
}

TEST_F(Run, CanSaveOverTheNetworkItself) {
    std::string const network = file("own.telm", readFile(first_));
    EXPECT_EQ(run({network, "--set", "Camera.zoom=50", "--save", network}).status, 0);
    EXPECT_THAT(readFile(network), HasSubstr("Camera.zoom=\"50\""));
}

TEST_F(Run, TakesCarriageReturnsAndGivesThemBack) {
    std::string text;
    for (char const each : readFile(first_))
        text += each == '\n' ? std::string("\r\n") : std::string(1, each);
    EXPECT_EQ(run({file("dos.telm", text), "--save", in("b.telm")}).status, 0);
    EXPECT_EQ(readFile(folder_ / "b.telm"), text);
}

struct Failure {
    char const* what;
    std::vector<std::string> arguments;
    int status;
    std::string message;  ///< part of the last line on standard error
};

TEST_F(Run, FailsWithOneClearLineAndWritesNothing) {
    std::string const out = in("out.png");
    std::string const banner = "# TelmScript Preliminiary Experimental \n";
    std::string const network = file("in.telm", banner + "Create/GlobalTime T\n");
    std::string const nowhere = (folder_ / "no" / "folder.png").string();
    Failure const cases[] = {
        {"no network", {"-o", out}, 2, "NETWORK is required"},
        {"nothing to do", {first_}, 2, "nothing to do"},
        {"one file for both", {first_, "-o", out, "--save", out}, 2, "cannot both be written"},
        {"missing", {in("none.telm"), "-o", out}, 1, "none.telm"},
        {"a folder", {folder_.path().string(), "-o", out}, 1, "telmbench: "},
        {"empty", {file("empty.telm", ""), "-o", out}, 1, "is empty"},
        {"binary", {file("binary.telm", std::string("MZ\0\x01", 4)), "-o", out}, 1, "is no text"},
        {"a picture", {file("x.png", PngBegin), "-o", out}, 1, "is no saved network"},
        {"no form NAME=TEXT", {first_, "--set", "Camera", "-o", out}, 2, "OBJECT.NAME=TEXT"},
        {"unknown object", {first_, "--set", "Camra.zoom=1", "-o", out}, 2, "mean 'Camera'"},
        {"unknown parameter", {first_, "--set", "Camera.zom=1", "-o", out}, 2, "mean 'zoom'?"},
        {"bad text", {first_, "--set", "Camera.zoom=wide", "-o", out}, 2, "'wide' is no value"},
        {"good, then bad",
         {first_, "--set", "Camera.zoom=9", "--set", "Camera.zoom=x", "--save", out},
         2,
         "'x' is no value"},
        {"no such context", {first_, "--set", "Camera.zoom{V}=1", "-o", out}, 2, "no context 'V'"},
        {"no such viewer", {first_, "--viewer", "Viewer9", "-o", out}, 2, "no viewer 'Viewer9'"},
        {"no viewer", {first_, "--viewer", "Camera", "-o", out}, 2, "no viewer 'Camera'"},
        {"network without viewer", {network, "-o", out}, 2, "no viewer 'Viewer1'"},
        {"unwritable", {first_, "-o", nowhere}, 1, "folder.png"},
        {"unwritable too", {first_, "--save", nowhere}, 1, "folder.png"},
    };
    std::vector<std::string> const before = folder_.names();
    for (Failure const& each : cases) {
        tests::ProcessResult const result = run(each.arguments);
        EXPECT_EQ(result.status, each.status) << each.what;
        EXPECT_THAT(result.outLines(), IsEmpty()) << each.what;
        ASSERT_THAT(result.errLines(), SizeIs(1)) << each.what;
        EXPECT_THAT(result.errLines().front(),
                    AllOf(StartsWith("telmbench: "), HasSubstr(each.message)))
            << each.what;
        EXPECT_EQ(folder_.names(), before) << each.what;
    }
}

TEST_F(Run, NamesFileLineTextAndReasonAndGoesOn) {
    std::string const text =
        "# TelmScript Preliminiary Experimental \n# Expecting procedurally object:  Viewer1\n"
        "Viewer1.size=\"40x30\"\nViewer1.size=\"wide\"\nViewer1.size=\"" +
        std::string(1 << 20, '9') + "\"\nViewer1.si";
    std::string const network = file("bad.telm", text);
    tests::ProcessResult const result = run({network, "-o", in("a.png"), "--save", in("a.telm")});
    EXPECT_EQ(result.status, 1);
    std::string const place = "telmbench: " + network + ":";
    EXPECT_THAT(
        result.errLines(),
        ElementsAre(StartsWith(place + "4: 'Viewer1.size=\"wide\"': the text 'wide' is no value"),
                    AllOf(StartsWith(place + "5: 'Viewer1.size=\"999"),
                          EndsWith("has 1048591 bytes; more than 65536 are not read")),
                    StartsWith(place + "6: 'Viewer1.si': the line has none of the forms"),
                    place + "6: the last line has no line feed; is the file cut off?",
                    HasSubstr("could not be carried out; all the rest was")));
    EXPECT_EQ(readFile(folder_ / "a.png").substr(16, 8), std::string("\0\0\0\x28\0\0\0\x1e", 8));
    EXPECT_EQ(readFile(folder_ / "a.telm"), text) << "nothing is lost";
}

TEST_F(Run, ReportsNoMoreThanAPageOfBadLines) {
    std::string text = "# TelmScript Preliminiary Experimental \n";
    for (int i = 0; i < 5000; ++i)
        text += "nonsense\n";
    tests::ProcessResult const result = run({file("bad.telm", text), "--save", in("a.telm")});
    EXPECT_EQ(result.status, 1);
    ASSERT_THAT(result.errLines(), SizeIs(52));
    EXPECT_THAT(result.errLines()[50], EndsWith("and 4950 more like these"));
}

}  // namespace
}  // namespace workbench
