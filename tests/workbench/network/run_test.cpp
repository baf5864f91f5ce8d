/// `telmbench run` as people call it: results, messages and exit status.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Process.hpp"
#include "tests/support/sanitizers.hpp"
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

TEST_F(Run, DrawsEachViewerOnTheBackgroundThatTheNetworkAsksFor) {
    std::string const head = "# TelmScript Preliminiary Experimental \n";
    std::string const viewer =
        "# Expecting procedurally object:  Viewer1\nViewer1.size=\"4x4\"\n"
        "# Expecting procedurally object:  DefaultScene\nViewer1.scene=>DefaultScene\n";
    std::vector<std::string> pictures;
    for (char const* const line : {"", "Viewer1.background=\"(1,0,0,1)\"\n"}) {
        tests::ProcessResult const result =
            run({file("in.telm", head + viewer + line), "-o", in("a.png")});
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.errLines(), IsEmpty());
        pictures.push_back(readFile(folder_ / "a.png"));
    }
    EXPECT_NE(pictures[0], pictures[1]);
}

/// One way to call a file.
struct Alias {
    char const* what;
    std::filesystem::path name;
};

TEST_F(Run, WritesNothingOverTheNetworkThatItReads) {
    std::string const network = file("own.telm", readFile(first_));
    std::vector<Alias> aliases{{"itself", network},
                               {"a detour", folder_.path() / "." / "own.telm"}};
#if !defined(_WIN32)
    std::filesystem::create_symlink("own.telm", folder_ / "link");
    std::filesystem::create_hard_link(network, folder_ / "twin");
    aliases.push_back({"a link", folder_ / "link"});
    aliases.push_back({"a twin", folder_ / "twin"});
#endif
    for (Alias const& each : aliases) {
        tests::ProcessResult const result = run({network, "-o", each.name.string()});
        EXPECT_EQ(result.status, 2) << each.what;
        ASSERT_THAT(result.errLines(), SizeIs(1)) << each.what;
        EXPECT_THAT(result.errLines().front(), HasSubstr("would be written over")) << each.what;
        EXPECT_EQ(readFile(network), readFile(first_)) << each.what;
    }
}

TEST_F(Run, WritesPictureAndNetworkToTwoFilesAlone) {
    std::vector<Alias> aliases{{"itself", in("new")}, {"a detour", folder_.path() / "." / "new"}};
#if !defined(_WIN32)
    std::filesystem::create_symlink("new", folder_ / "link");
    aliases.push_back({"a link to what is not there yet", folder_ / "link"});
#endif
    for (Alias const& each : aliases) {
        tests::ProcessResult const result =
            run({first_, "-o", in("new"), "--save", each.name.string()});
        EXPECT_EQ(result.status, 2) << each.what;
        ASSERT_THAT(result.errLines(), SizeIs(1)) << each.what;
        EXPECT_THAT(result.errLines().front(), HasSubstr("cannot both be written")) << each.what;
        EXPECT_FALSE(std::filesystem::exists(folder_ / "new")) << each.what;
    }
}

TEST_F(Run, FailsWhereTheWayOfTheDataIsBroken) {
    std::string const whole = readFile(first_);
    auto const without = [&](std::string const& line) {
        std::string text = whole;
        return text.erase(text.find(line), line.size());
    };
    auto const replaced = [&](std::string const& from, std::string const& to) {
        std::string text = whole;
        return text.replace(text.find(from), from.size(), to);
    };
    struct {
        char const* what;
        std::string text;
        std::string message;  ///< of the first line, behind FILE:LINE:
    } const cases[] = {
        {"cut at the end of a line", whole.substr(0, whole.find("Viewer1.scene=>")),
         "objects are never set up"},
        {"an unknown field", replaced("\"radialfield@", "\"smoke@"), "there is no field 'smoke'"},
        {"no map", without("FieldSlice.colormap=>Hypsometric_for_FieldSlice_colormap\n"),
         "there is no colour map"},
        {"no scene", without("Viewer1.scene=>DefaultScene\n"), "there is no scene to show"},
        {"cut before the connections", whole.substr(0, whole.find("#\n# Establish")),
         "there is no scene to show"},
    };
    for (auto const& each : cases) {
        tests::ProcessResult const result =
            run({file("broken.telm", each.text), "-o", in("a.png")});
        EXPECT_EQ(result.status, 1) << each.what;
        ASSERT_GE(result.errLines().size(), 2U) << each.what;
        EXPECT_THAT(
            result.errLines().front(),
            AllOf(StartsWith("telmbench: " + in("broken.telm") + ":"), HasSubstr(each.message)))
            << each.what;
    }
}

TEST_F(Run, ADamagedNetworkWithoutItsViewerIsNoWrongCall) {
    std::string const text =
        "# TelmScript Preliminiary Experimental \n# Expecting procedurally object:  Viewer1 \n";
    tests::ProcessResult const result = run({file("bad.telm", text), "-o", in("a.png")});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errLines().back(), HasSubstr("there is no viewer 'Viewer1'"));
}

/// Each object reads the one before, whichever is connected first.
TEST_F(Run, CarriesOutAChainOfAnyLength) {
    constexpr int Length = tests::LongChain * 6 / 10;
    std::string objects = "# TelmScript Preliminiary Experimental \n";
    for (int i = 0; i <= Length; ++i)
        objects += "# Expecting procedurally object:  K" + std::to_string(i) + "\n";
    objects +=
        "# Expecting procedurally object:  Viewer1\nViewer1.size=\"4x4\"\n"
        "# Expecting procedurally object:  DefaultScene\nViewer1.scene=>DefaultScene\n";
    auto const connection = [](int i) {
        return "K" + std::to_string(i) + ".x=>K" + std::to_string(i - 1) + "\n";
    };
    std::string forward = objects;
    std::string backward = objects;
    for (int i = 1; i <= Length; ++i) {
        forward += connection(i);
        backward += connection(Length + 1 - i);
    }
    for (std::string const& text : {forward, backward}) {
        std::string const last = "Viewer1.x=>K" + std::to_string(Length) + "\n";
        tests::ProcessResult const result =
            run({file("long.telm", text + last + "K0.x=>Viewer1\n"), "-o", in("a.png")});
        EXPECT_EQ(result.status, 1);
        ASSERT_THAT(result.errLines(), SizeIs(2));
        EXPECT_THAT(result.errLines()[0],
                    HasSubstr("this would close a cycle: 'Viewer1' itself depends on 'K0'"));
        EXPECT_THAT(readFile(folder_ / "a.png"), StartsWith(PngBegin));
    }
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
        {"a byte order mark",
         {file("bom.telm", "\xef\xbb\xbf" + banner), "-o", out},
         1,
         "bom.telm' begins with a byte order mark"},
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
                    place + "2: 'Viewer1': there is no scene to show",
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
