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

}  // namespace
