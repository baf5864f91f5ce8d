/// Several plug-ins at once: which files are taken, in what order, and what stands in
/// their way.
#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/workbench/cli/telmbench.hpp"
#include "workbench/common/files.hpp"

namespace {

using namespace tests;
using Json = nlohmann::ordered_json;
namespace fs = std::filesystem;

constexpr int WorkFailed = 1;
/// How libraries of the other system begin.
#if defined(_WIN32)
constexpr char ForeignLibrary[] = "\x7f\x45LF";
#else
constexpr char ForeignLibrary[] = "MZ";
#endif

std::string const First = fileBeside("prism_tinctures.telm");
std::string const Second = fileBeside("second_plugin.telm");

void copyTo(fs::path const& folder, std::string const& file, std::string const& name) {
    fs::copy_file(file, folder / name);
}

Json catalogueOf(Lines arguments) {
    arguments.insert(arguments.end(), {"catalogue", "--json"});
    return Json::parse(telmbench(arguments).out);
}

/// The modules of the entries, each where it begins.
Lines modules(Json const& catalogue) {
    Lines found;
    for (Json const& entry : catalogue)
        if (found.empty() || found.back() != entry["module"])
            found.push_back(entry["module"]);
    return found;
}

TEST(Plugins, BringTheirEntriesInTheOrderInWhichTheyAreNamed) {
    EXPECT_EQ(modules(catalogueOf({"--plugin", First, "--plugin", Second})),
              (Lines{"prism_tinctures", "second_plugin"}));
    EXPECT_EQ(modules(catalogueOf({"--plugin", Second, "--plugin", First})),
              (Lines{"second_plugin", "prism_tinctures"}));
    EXPECT_EQ(modules(catalogueOf({})), Lines{"prism_tinctures"});
}

TEST(Plugins, AreToldByTheCatalogueForEachEntry) {
    Json const entries = catalogueOf({"--plugin", First, "--plugin", Second});
    EXPECT_EQ(entries.front()["plugin"], First);
    EXPECT_EQ(entries.back()["plugin"], Second);
    Lines const alone = results({"--plugin", Second, "catalogue"});
    EXPECT_EQ(alone, (Lines{"Colormaps/Second", "    order  0", "", "1 entry"}));
    Lines const both = results({"--plugin", First, "--plugin", Second, "catalogue"});
    EXPECT_EQ(Lines(both.end() - 5, both.end() - 1),
              (Lines{"Colormaps/Second", "    order    0", "    plug-in  second_plugin", ""}));
}

TEST(Plugins, AreUnloadedInReverse) {
    Lines told;
    for (std::string const& line :
         telmbench({"--verbosity", "100", "--plugin", First, "--plugin", Second, "catalogue"})
             .errLines())
        if (line.starts_with("VInitialization::"))
            told.push_back(line);
    EXPECT_EQ(told, (Lines{"VInitialization::initPlugin(0,prism_tinctures,TELM_API_VERSION)",
                           "VInitialization::initPlugin(0,second_plugin,TELM_API_VERSION)",
                           "VInitialization::initPlugin(1,second_plugin,TELM_API_VERSION)",
                           "VInitialization::initPlugin(1,prism_tinctures,TELM_API_VERSION)"}));
}

TEST(Plugins, AnswerLookupsOfAllOfThem) {
    Lines const both{"--plugin", First, "--plugin", Second, "lookup"};
    auto const lookup = [&](Lines const& rest) {
        Lines arguments = both;
        arguments.insert(arguments.end(), rest.begin(), rest.end());
        return results(arguments);
    };
    EXPECT_EQ(lookup({"Second", "--set", "green=0.5", "0"}), Lines{"0 0 0.5 0 1"});
    EXPECT_EQ(lookup({"Colormaps/Hypsometric", "0"}), results({"lookup", "Hypsometric", "0"}));
}

TEST(Plugins, OfAFolderComeInTheOrderOfTheirNames) {
    TemporaryFolder const folder;
    copyTo(folder.path(), First, "b.telm");
    copyTo(folder.path(), Second, "a.telm");
    EXPECT_EQ(modules(catalogueOf({"--plugin", textOf(folder.path())})),
              (Lines{"second_plugin", "prism_tinctures"}));
}

/// Saved networks have the ending of plug-ins.
TEST(Plugins, OfAFolderAreLibrariesOfThisSystemWithTheRightEnding) {
    TemporaryFolder const folder;
    copyTo(folder.path(), Second, "second.telm");
    copyTo(folder.path(), First, "first.library");
    workbench::writeFile(folder / "a network.telm", "# TelmScript\n");
    workbench::writeFile(folder / "of another system.telm", ForeignLibrary);
    workbench::writeFile(folder / "empty.telm", "");
    workbench::makeFolder(folder / "folder.telm");
    EXPECT_EQ(modules(catalogueOf({"--plugin", textOf(folder.path())})), Lines{"second_plugin"});
}

TEST(Plugins, AreNotWrittenOverWhicheverOfThemItIs) {
    TemporaryFolder const folder;
    copyTo(folder.path(), Second, "second.telm");
    std::string const bytes = workbench::readFile(folder / "second.telm");
    std::string const file = textOf(folder / "second.telm");
    for (std::string const& named : {file, textOf(folder.path())}) {
        ProcessResult const result =
            telmbench({"--plugin", First, "--plugin", named, "ramp", "Glow", "-o", file});
        EXPECT_EQ(result.status, 2) << named;
        EXPECT_EQ(result.errLines(),
                  Lines{"telmbench: '" + file + "' would be written over '" + file +
                        "', which is read and is the same file; name another "
                        "file to write"})
            << named;
    }
    EXPECT_EQ(workbench::readFile(folder / "second.telm"), bytes);
}

/// What the program says where plug-ins cannot be had together.
std::string complaint(Lines const& named) {
    Lines arguments;
    for (std::string const& each : named)
        arguments.insert(arguments.end(), {"--plugin", each});
    arguments.insert(arguments.end(), {"catalogue", "--json"});
    ProcessResult const result = telmbench(arguments);
    EXPECT_EQ(result.status, WorkFailed);
    EXPECT_EQ(result.out, "");
    return result.errLines().empty() ? "" : result.errLines().back();
}

TEST(Plugins, NamedTwiceAreRefused) {
    TemporaryFolder const folder;
    copyTo(folder.path(), Second, "second.telm");
    std::string const file = textOf(folder / "second.telm"), all = textOf(folder.path());
    struct Case {
        char const* rule;
        Lines named;
    };
    for (Case const& c :
         {Case{"by one name", {file, file}},
          Case{"by two names", {textOf(folder / ".") + "/second.telm", file}},
          Case{"by its folder too", {file, First, all}}, Case{"by its folder twice", {all, all}}})
        EXPECT_TRUE(complaint(c.named).ends_with("is named twice; name it once")) << c.rule;
}

TEST(Plugins, WithOneKeyAreRefusedAndBothNamed) {
    TemporaryFolder const folder;
    copyTo(folder.path(), Second, "copy.telm");
    std::string const copy = textOf(folder / "copy.telm");
    EXPECT_EQ(complaint({Second, First, copy}), "telmbench: the plug-in '" + copy +
                                                    "' has the entry 'Colormaps/Second', which '" +
                                                    Second + "' has too; load one of them");
}

}  // namespace
