/// How the program is called, whatever the command.
#include "tests/workbench/cli/telmbench.hpp"

namespace {

using namespace tests;

std::string joined(Lines const& lines) {
    std::string text;
    for (std::string const& line : lines)
        text += line + "\n";
    return text;
}

TEST(Arguments, HelpTeachesByExamples) {
    for (Lines const& arguments :
         {Lines{"--help"}, Lines{"catalogue", "--help"}, Lines{"describe", "-h"},
          Lines{"lookup", "--help"}, Lines{"ramp", "--help"}}) {
        std::string const help = joined(results(arguments));
        EXPECT_NE(help.find("Usage: telmbench"), std::string::npos) << help;
        EXPECT_NE(help.find("Examples:\n  telmbench "), std::string::npos) << help;
    }
}

TEST(Arguments, TheHelpNamesAllCommands) {
    std::string const help = joined(results({"--help"}));
    for (char const* const command : {"catalogue", "describe", "lookup", "ramp"})
        EXPECT_NE(help.find(std::string("\n  ") + command + " "), std::string::npos) << command;
}

TEST(Arguments, TheVersionIsThatOfTheProject) {
    EXPECT_EQ(results({"--version"}), Lines{"telmbench " PRISM_VERSION});
}

TEST(Arguments, CommonOptionsMayStandBehindTheCommand) {
    std::string const plugin = fileBeside("prism_tinctures.telm");
    Lines const expected = results({"lookup", "Hypsometric", "0"});
    EXPECT_EQ(results({"--plugin", plugin, "lookup", "Hypsometric", "0"}), expected);
    EXPECT_EQ(results({"lookup", "Hypsometric", "0", "--plugin", plugin}), expected);
    EXPECT_EQ(results({"lookup", "--plugin=" + plugin, "Hypsometric", "0"}), expected);
}

TEST(Arguments, APluginMayLieInAFolderWithAnyName) {
    TemporaryFolder const folder;
    std::filesystem::path const deep = folder / "m\xc3\xa4rz \xe5\x9c\xb0\xe5\x9b\xb3";
    std::filesystem::create_directory(deep);
    std::filesystem::path const copy = deep / "copy.telm";
    std::filesystem::copy_file(fileBeside("prism_tinctures.telm"), copy);
#if !defined(_WIN32)  // the copy looks for its libraries beside itself
    for (char const* const name : {"libnucleo.so", "liblattice.so", "libquartz.so", "libvellum.so"})
        std::filesystem::create_symlink(fileBeside(name), deep / name);
#endif
    EXPECT_EQ(results({"--plugin", textOf(copy), "lookup", "Hypsometric", "0"}),
              results({"lookup", "Hypsometric", "0"}));
}

TEST(Arguments, TheHelpOfACommandShowsTheCommonOptions) {
    for (char const* const command : {"catalogue", "describe", "lookup", "ramp", "run"}) {
        std::string const help = joined(results({command, "--help"}));
        EXPECT_NE(help.find("Options of every command:\n  --plugin FILE"), std::string::npos)
            << help;
        EXPECT_NE(help.find("\n  --verbosity N"), std::string::npos) << help;
    }
}

TEST(Arguments, NegativeNumbersAreNoOptions) {
    Lines const expected = results({"lookup", "Hypsometric", "nan", "1", "-1"});
    EXPECT_EQ(results({"lookup", "Hypsometric", "nan", "1", "--", "-1"}), expected);
    EXPECT_EQ(results({"lookup", "Hypsometric", "--", "nan", "1", "-1"}), expected);
    EXPECT_EQ(telmbench({"lookup", "Hypsometric", "--", "--json"}).errLines(),
              Lines{"telmbench: value 1, '--json', is no number within the range of a double, "
                    "such as 0.5, -1e-3, 0x1p-4, nan, inf or -inf"});
    EXPECT_EQ(telmbench({"catalogue", "-5"}).errLines(),
              Lines{"telmbench: there is no option '-5'; 'telmbench catalogue --help' tells how to "
                    "call it"});
}

TEST(Arguments, AFileMayBeNamedLikeANumber) {
    TemporaryFolder const folder;
    ProcessResult const result =
        telmbench({"ramp", "Glow", "-o", "-5", "--plugin", textOf(folder / "none")});
    EXPECT_EQ(result.status, 1) << "the name is taken, and the plug-in is missed";
    std::filesystem::path const before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    EXPECT_EQ(results({"ramp", "Glow", "-o", "-5"}), Lines{});
    std::filesystem::current_path(before);
    EXPECT_EQ(folder.names(), Lines{"-5"});
}

}  // namespace
