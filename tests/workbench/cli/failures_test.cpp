/// Every way to fail: one line on standard error that names the culprit and the
/// remedy, the right status, and nothing left behind.
#include <algorithm>

#include "tests/support/sanitizers.hpp"
#include "tests/workbench/cli/telmbench.hpp"
#include "workbench/common/files.hpp"

namespace {

using namespace tests;

constexpr int WorkFailed = 1;
constexpr int CallWrong = 2;

struct FailureCase {
    char const* rule;
    Lines arguments;  ///< {folder} stands for a folder, {beside} for that of the program
    int status;
    std::string message;  ///< behind "telmbench: "
};

FailureCase const pluginCases[] = {
    {"no such plug-in",
     {"--plugin", "{folder}/none.telm", "catalogue"},
     WorkFailed,
     "the plug-in '{folder}/none.telm' does not exist; --plugin FILE names another"},
    {"a folder",
     {"--plugin", "{folder}", "catalogue"},
     WorkFailed,
     "the folder '{folder}' holds no plug-in: no library of this system with a name in .telm"},
    {"a file that is no library",
     {"--plugin", "{folder}/text.telm", "catalogue"},
     WorkFailed,
     "the plug-in '{folder}/text.telm' cannot be loaded as a library: it is no 64-bit library of "
     "this system"},
    {"a name with control characters",
     {"--plugin", "{folder}/a\x1b[31m", "catalogue"},
     WorkFailed,
     "the plug-in '{folder}/a\\x1b[31m' does not exist; --plugin FILE names another"},
    {"no name",
     {"--plugin", "", "catalogue"},
     CallWrong,
     "--plugin is given the empty text, which names no file"},
    {"a library without the export",
     {"--plugin", "{beside}/no_plugin.telm", "catalogue"},
     WorkFailed,
     "the plug-in '{beside}/no_plugin.telm' is a library, but not this kind of plug-in: it lacks "
     "the export TELM_API_2024_MAR_06__NAME"},
    {"a library with two of the exports",
     {"--plugin", "{beside}/two_questions.telm", "catalogue"},
     WorkFailed,
     "the plug-in '{beside}/two_questions.telm' exports TELM_API_2024_MAR_06__one and "
     "TELM_API_2024_MAR_06__two; a plug-in has one of them"},
    {"a plug-in for another interface",
     {"--plugin", "{beside}/older_plugin.telm", "catalogue"},
     WorkFailed,
     "the plug-in '{beside}/older_plugin.telm' is for another interface: it exports "
     "TELM_API_2023_DEC_24__older, and this host looks for TELM_API_2024_MAR_06__NAME; build it "
     "against this host's interface"},
    {"a host that does not fit",
     {"--plugin", "{beside}/prism_tinctures.telm", "--refuse", "catalogue"},
     WorkFailed,
     "the host answers that the plug-in '{beside}/prism_tinctures.telm' is not compatible; build "
     "it against this host's interface"},
};

FailureCase const entryCases[] = {
    {"a name that is nearly right",
     {"describe", "Hypsometrik"},
     CallWrong,
     "there is no entry 'Hypsometrik'; did you mean 'Hypsometric'?"},
    {"a key that is nearly right",
     {"lookup", "Colormap/Topographic", "0"},
     CallWrong,
     "there is no entry 'Colormap/Topographic'; did you mean 'Colormaps/Topographic'?"},
    {"a name like no other",
     {"ramp", "Watermelon", "-o", "{folder}/new.png"},
     CallWrong,
     "there is no entry 'Watermelon'; 'telmbench catalogue' lists them"},
    {"the wrong folder",
     {"describe", "Watermelons/Hypsometric/x"},
     CallWrong,
     "there is no entry 'Watermelons/Hypsometric/x'; 'telmbench catalogue' lists them"},
};

FailureCase const settingCases[] = {
    {"an unknown parameter",
     {"lookup", "Hypsometric", "--set", "option=inverse", "0"},
     CallWrong,
     "'Hypsometric' has no parameter 'option'; did you mean 'options'?"},
    {"a parameter of an object that has none",
     {"lookup", "TulElbeColorScheme", "--set", "options=x", "0"},
     CallWrong,
     "'TulElbeColorScheme' has no parameter 'options'; it has none"},
    {"the output",
     {"lookup", "Hypsometric", "--set", "colormap=x", "0"},
     CallWrong,
     "the parameter 'colormap' of 'Hypsometric' is an output; it cannot be set"},
    {"a text that does not parse",
     {"ramp", "Hypsometric", "--set", "options=upward", "-o", "{folder}/new.png"},
     CallWrong,
     "the text 'upward' is no value of the parameter 'options' of type FlagList; a right one is "
     "the present ' -inverse'"},
    {"no text",
     {"lookup", "Hypsometric", "--set", "options", "0"},
     CallWrong,
     "the setting 'options' is not of the form NAME=TEXT"},
};

FailureCase const valueCases[] = {
    {"a word",
     {"lookup", "Hypsometric", "0", "many", "1"},
     CallWrong,
     "value 2, 'many', is no number within the range of a double, such as 0.5, -1e-3, 0x1p-4, "
     "nan, inf or -inf"},
    {"a number with more behind it",
     {"lookup", "Hypsometric", "0.5x"},
     CallWrong,
     "value 1, '0.5x', is no number within the range of a double, such as 0.5, -1e-3, 0x1p-4, "
     "nan, inf or -inf"},
    {"a number too large",
     {"lookup", "Hypsometric", "1e999"},
     CallWrong,
     "value 1, '1e999', is no number within the range of a double, such as 0.5, -1e-3, 0x1p-4, "
     "nan, inf or -inf"},
    {"a number with a comma",
     {"lookup", "Hypsometric", "0,5"},
     CallWrong,
     "value 1, '0,5', is no number within the range of a double, such as 0.5, -1e-3, 0x1p-4, "
     "nan, inf or -inf"},
    {"no values",
     {"lookup", "Hypsometric"},
     CallWrong,
     "VALUE is required; 'telmbench lookup --help' tells how to call it"},
};

constexpr char BadSize[] =
    "is not of the form WIDTHxHEIGHT with 1 to 16384 pixels each, such as 512x64";

FailureCase const pictureCases[] = {
    {"a size of one number",
     {"ramp", "Hypsometric", "--size", "512", "-o", "{folder}/new.png"},
     CallWrong,
     std::string("the size '512' ") + BadSize},
    {"no pixels",
     {"ramp", "Hypsometric", "--size", "0x64", "-o", "{folder}/new.png"},
     CallWrong,
     std::string("the size '0x64' ") + BadSize},
    {"too wide",
     {"ramp", "Hypsometric", "--size", "16385x1", "-o", "{folder}/new.png"},
     CallWrong,
     std::string("the size '16385x1' ") + BadSize},
    {"too high",
     {"ramp", "Hypsometric", "--size", "1x16385", "-o", "{folder}/new.png"},
     CallWrong,
     std::string("the size '1x16385' ") + BadSize},
    {"more than an int",
     {"ramp", "Hypsometric", "--size", "99999999999x1", "-o", "{folder}/new.png"},
     CallWrong,
     std::string("the size '99999999999x1' ") + BadSize},
    {"no file",
     {"ramp", "Hypsometric"},
     CallWrong,
     "-o is required; 'telmbench ramp --help' tells how to call it"},
    {"a folder that is not there",
     {"ramp", "Hypsometric", "-o", "{folder}/none/new.png"},
     WorkFailed,
     "cannot write '{folder}/none/new.png': No such file or directory"},
    {"a folder instead of a file",
     {"ramp", "Hypsometric", "-o", "{folder}"},
     WorkFailed,
     "cannot write '{folder}': it is a folder"},
};

FailureCase const overwritingCases[] = {
    {"the plug-in by its picture",
     {"--plugin", "{folder}/text.telm", "ramp", "Glow", "-o", "{folder}/../{name}/text.telm"},
     CallWrong,
     "'{folder}/../{name}/text.telm' would be written over '{folder}/text.telm', which is read and "
     "is the same file; name another file to write"},
    {"the plug-in by the picture of a network",
     {"--plugin", "{folder}/text.telm", "run", "{folder}/none.telm", "-o", "{folder}/text.telm"},
     CallWrong,
     "'{folder}/text.telm' would be written over '{folder}/text.telm', which is read and is the "
     "same file; name another file to write"},
    {"the plug-in by the network",
     {"--plugin", "{folder}/text.telm", "run", "{folder}/none.telm", "--save",
      "{folder}/text.telm"},
     CallWrong,
     "'{folder}/text.telm' would be written over '{folder}/text.telm', which is read and is the "
     "same file; name another file to write"},
};

FailureCase const callCases[] = {
    {"nothing", {}, CallWrong, "no command is given; 'telmbench --help' lists the commands"},
    {"an unknown command",
     {"catalog"},
     CallWrong,
     "there is no command 'catalog'; did you mean 'catalogue'?"},
    {"a command like no other",
     {"watermelon"},
     CallWrong,
     "there is no command 'watermelon'; 'telmbench --help' lists the commands"},
    {"an unknown option",
     {"catalogue", "--jsn"},
     CallWrong,
     "there is no option '--jsn'; did you mean '--json'?"},
    {"an option like no other",
     {"lookup", "Hypsometric", "-x"},
     CallWrong,
     "there is no option '-x'; 'telmbench lookup --help' tells how to call it"},
    {"an argument too many",
     {"catalogue", "extra"},
     CallWrong,
     "the argument 'extra' is one too many; 'telmbench catalogue --help' tells how to call it"},
    {"a level that is no number",
     {"--verbosity", "many", "catalogue"},
     CallWrong,
     "--verbosity: 'many' is no whole number from 0 to 1000; 'telmbench catalogue --help' tells "
     "how to call it"},
    {"a level below all",
     {"catalogue", "--verbosity", "-1"},
     CallWrong,
     "--verbosity: '-1' is no whole number from 0 to 1000; 'telmbench catalogue --help' tells how "
     "to call it"},
    {"an option without its text",
     {"ramp", "Hypsometric", "-o"},
     CallWrong,
     "-o: 1 required FILE missing; 'telmbench ramp --help' tells how to call it"},
};

std::string replaced(std::string text, std::string const& what, std::string const& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

template <std::size_t Count>
void expectFailures(FailureCase const (&cases)[Count]) {
    std::string const beside = textOf(programBeside("telmbench").parent_path());
    for (FailureCase const& c : cases) {
        TemporaryFolder const folder;
        workbench::writeFile(folder / "text.telm", "no library\n");
        auto const filledIn = [&](std::string const& text) {
            std::string const name = textOf(folder.path().filename());
            return replaced(
                replaced(replaced(text, "{folder}", textOf(folder.path())), "{beside}", beside),
                "{name}", name);
        };
        Lines arguments = c.arguments;
        std::ranges::transform(arguments, arguments.begin(), filledIn);
        ProcessResult const result = telmbench(arguments);
        EXPECT_EQ(result.status, c.status) << c.rule;
        EXPECT_EQ(result.out, "") << c.rule;
        EXPECT_EQ(result.errLines(), Lines{"telmbench: " + filledIn(c.message)}) << c.rule;
        EXPECT_EQ(folder.names(), Lines{"text.telm"}) << c.rule;
    }
}

TEST(Failures, OfPlugins) {
    expectFailures(pluginCases);
}
TEST(Failures, OfEntries) {
    expectFailures(entryCases);
}
TEST(Failures, OfSettings) {
    expectFailures(settingCases);
}
TEST(Failures, OfValues) {
    expectFailures(valueCases);
}
TEST(Failures, OfPictures) {
    expectFailures(pictureCases);
}
TEST(Failures, OfOutputsThatAreRead) {
    expectFailures(overwritingCases);
}
TEST(Failures, OfCalls) {
    expectFailures(callCases);
}

TEST(Failures, ABadValueOnStandardInputIsNamedWithItsPlace) {
    ProcessResult const result = telmbench({"lookup", "Hypsometric", "-"}, "0 0.5\n1 many 2\n");
    EXPECT_EQ(result.status, CallWrong);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.errLines(),
              Lines{"telmbench: value 4 of standard input, 'many', is no number within the range "
                    "of a double, such as 0.5, -1e-3, 0x1p-4, nan, inf or -inf"});
}

TEST(Failures, AnEndlessArgumentGivesAShortMessage) {
    // a whole call may be 32 KB long on Windows
    ProcessResult const result = telmbench({"describe", std::string(30'000, 'x')});
    EXPECT_EQ(result.status, CallWrong);
    EXPECT_EQ(result.errLines(), Lines{"telmbench: there is no entry '" + std::string(80, 'x') +
                                       "...'; 'telmbench catalogue' lists them"});
}

TEST(Failures, ALineEndInAnArgumentStaysInTheLine) {
    EXPECT_EQ(telmbench({"describe", "a\nb"}).errLines(),
              Lines{"telmbench: there is no entry 'a\\x0ab'; 'telmbench catalogue' lists them"});
}

/// Calls that the C++ library refuses somewhere below; {long} is a name longer than
/// file systems take.
struct RefusedCall {
    char const* rule;
    Lines arguments;
};

RefusedCall const refusedCalls[] = {
    {"a picture below a file", {"ramp", "Glow", "-o", "{folder}/text.telm/new.png"}},
    {"a picture of a long name", {"ramp", "Glow", "-o", "{folder}/{long}.png"}},
    {"a gallery in place of a file", {"gallery", "-o", "{folder}/text.telm"}},
    {"a gallery of a long name", {"gallery", "-o", "{folder}/{long}/{long}"}},
    {"a network below a file", {"run", "{folder}/text.telm/a.telm", "-o", "{folder}/new.png"}},
    {"a network of a long name", {"run", "{long}", "--save", "{long}/{long}"}},
    {"a network that is a folder", {"run", "{folder}", "-o", "{folder}/new.png"}},
    {"data of a long name", {"color", "Glow", "{long}", "-o", "{folder}/new.png"}},
    {"data below a file", {"color", "Glow", "{folder}/text.telm/a", "-o", "{long}/{long}"}},
    {"a plug-in below a file", {"--plugin", "{folder}/text.telm/a.telm", "catalogue"}},
    {"a plug-in of a long name", {"--plugin", "{long}/{long}", "catalogue"}},
    {"fewer colours than none",
     {"lookup", "MaxDistinguishableColors", "--set", "Number of Colors=-1", "0"}},
    {"fewer steps than none", {"lookup", "MaxDistinguishableColors", "--set", "RGB Steps=-2", "0"}},
    {"more colours than memory",
     {"lookup", "MaxDistinguishableColors", "--set", "Number of Colors=2147483647", "0"}},
    {"a level beyond all integers", {"--verbosity", "99999999999999999999", "catalogue"}},
    {"a level of no digits", {"--verbosity", "", "catalogue"}},
    {"a band beyond all integers",
     {"color", "Glow", "x", "--band", "99999999999999999999", "-o", "{folder}/new.png"}},
    {"a size beyond all integers",
     {"ramp", "Glow", "--size", "1x99999999999999999999", "-o", "{folder}/new.png"}},
    {"a value beyond all doubles", {"lookup", "Glow", "1e99999"}},
    {"a setting of no name", {"lookup", "Glow", "--set", "=", "0"}},
    {"an entry of no name", {"describe", ""}},
    {"a command of no name", {""}},
};

TEST(Failures, NeverSpeakInTheWordsOfTheCppLibrary) {
    char const* const raw[] = {"filesystem", "basic_string", "std::",  "stoi",           "stod",
                               "bad_alloc",  "bad_cast",     "vector", "json.exception", "_M_",
                               "iostream",   "what()",       "generic"};
    for (RefusedCall const& c : refusedCalls) {
        TemporaryFolder const folder;
        workbench::writeFile(folder / "text.telm", "no library\n");
        Lines arguments = c.arguments;
        for (std::string& each : arguments)
            each = replaced(replaced(each, "{folder}", textOf(folder.path())), "{long}",
                            std::string(300, 'x'));
        ProcessResult const result = telmbench(arguments);
        EXPECT_TRUE(result.status == WorkFailed || result.status == CallWrong) << c.rule;
        ASSERT_FALSE(result.errLines().empty()) << c.rule;
        EXPECT_TRUE(result.errLines().back().starts_with("telmbench: ")) << c.rule;
        for (char const* const each : raw)
            EXPECT_EQ(result.err.find(each), std::string::npos) << c.rule << ": " << result.err;
        EXPECT_EQ(folder.names(), Lines{"text.telm"}) << c.rule;
    }
}

TEST(Failures, WithoutMemorySayWhatHelps) {
    for (char const* const setting : {"Number of Colors=-1", "RGB Steps=-2"})
        EXPECT_EQ(
            telmbench({"lookup", "MaxDistinguishableColors", "--set", setting, "0"}).errLines(),
            Lines{"telmbench: the memory does not suffice; ask for less"})
            << setting;
}

#if !defined(_WIN32)

/// A picture of a gigabyte, in a third of it.
TEST(Failures, OfAllocationsSayWhatHelps) {
    if (PRISM_ADDRESS_SANITIZER || PRISM_THREAD_SANITIZER)
        GTEST_SKIP() << "a sanitizer needs more memory than any limit leaves";
    TemporaryFolder const folder;
    ProcessResult const result = runProcess(
        "/bin/sh", {"-c", "ulimit -v 300000; exec \"$@\"", "sh", textOf(programBeside("telmbench")),
                    "ramp", "Glow", "--size", "16384x16384", "-o", textOf(folder / "new.png")});
    EXPECT_EQ(result.status, WorkFailed);
    EXPECT_EQ(result.errLines(), Lines{"telmbench: the memory does not suffice; ask for less"});
    EXPECT_EQ(folder.names(), Lines{});
}

#endif

/// The plug-in beside the program, changed.
std::string pluginBytes() {
    return workbench::readFile(programBeside("telmbench").parent_path() / "prism_tinctures.telm");
}

/// What the program says of a plug-in file of these bytes.
Lines complaintsOfPlugin(std::string const& bytes) {
    TemporaryFolder const folder;
    workbench::writeFile(folder / "p.telm", bytes);
    ProcessResult const result = telmbench({"--plugin", textOf(folder / "p.telm"), "catalogue"});
    EXPECT_EQ(result.status, WorkFailed);
    std::string const start = "telmbench: the plug-in '" + textOf(folder / "p.telm") +
                              "' cannot be loaded as a library: ";
    Lines lines = result.errLines();
    for (std::string& line : lines)
        if (line.starts_with(start))
            line.erase(0, start.size());
    return lines;
}

TEST(Failures, APluginThatIsCutOffIsRefusedWhereverItIsCut) {
    std::string const whole = pluginBytes();
    // Behind the half may stand symbols alone, which no loader asks for.
    for (std::size_t const part : {4U, 10U, 50U, 200U}) {
        std::size_t const size = whole.size() / part;
        Lines const lines = complaintsOfPlugin(whole.substr(0, size));
        ASSERT_EQ(lines.size(), 1U);
        EXPECT_TRUE(lines[0].starts_with("it is cut off: " + std::to_string(size) + " bytes are "))
            << lines[0];
    }
    EXPECT_EQ(complaintsOfPlugin(whole.substr(0, 10)),
              Lines{"it is no 64-bit library of this system"});
}

TEST(Failures, APluginForAnotherProcessorIsRefused) {
    std::string bytes = pluginBytes();
    std::size_t const machine =
        bytes[0] == 'M' ? static_cast<unsigned char>(bytes[0x3c]) + 4U : 18U;  // PE and ELF
    bytes[machine] = '\x01';
    EXPECT_EQ(complaintsOfPlugin(bytes), Lines{"it was built for another processor"});
}

TEST(Failures, AWriteProtectedPictureIsLeftAlone) {
    TemporaryFolder const folder;
    std::filesystem::path const picture = folder / "old.png";
    workbench::writeFile(picture, "old");
    std::filesystem::permissions(picture, std::filesystem::perms::owner_read);
    ProcessResult const result = telmbench({"ramp", "Glow", "-o", textOf(picture)});
    EXPECT_EQ(result.status, WorkFailed);
    EXPECT_EQ(result.errLines(),
              Lines{"telmbench: cannot write '" + textOf(picture) + "': it is write-protected"});
    EXPECT_EQ(workbench::readFile(picture), "old");
    std::filesystem::permissions(picture, std::filesystem::perms::owner_all);
}

#if !defined(_WIN32)

TEST(Failures, APluginThatCannotBeReachedIsToldInOwnWords) {
    std::string const name(300, 'x');  // longer than a file system's names
    EXPECT_EQ(telmbench({"--plugin", name, "catalogue"}).errLines(),
              Lines{"telmbench: the plug-in '" + name + "' cannot be reached: File name too long"});
}

TEST(Failures, StandardInputThatCannotBeRead) {
    ProcessResult const result =
        runProcess(programBeside("telmbench"), {"lookup", "Hypsometric", "-"}, {}, {.in = "/"});
    EXPECT_EQ(result.status, WorkFailed);
    EXPECT_EQ(result.errLines(), Lines{"telmbench: cannot read standard input: Is a directory"});
}

TEST(Failures, ResultsThatCannotBeWritten) {
    for (Lines const& arguments :
         {Lines{"catalogue"}, Lines{"catalogue", "--json"}, Lines{"lookup", "Hypsometric", "0"},
          Lines{"describe", "Hypsometric"}, Lines{"--help"}, Lines{"ramp", "--help"},
          Lines{"--version"}}) {
        ProcessResult const result =
            runProcess(programBeside("telmbench"), arguments, {}, {.out = "/dev/full"});
        EXPECT_EQ(result.status, WorkFailed);
        EXPECT_EQ(result.errLines(),
                  Lines{"telmbench: cannot write the results to standard output: No space left on "
                        "device"});
    }
}

#endif

}  // namespace
