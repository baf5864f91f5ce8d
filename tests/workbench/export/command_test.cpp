/// `telmbench export`: its options, its words, its refusals.
#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/workbench/cli/telmbench.hpp"
#include "workbench/common/files.hpp"

namespace {

using namespace tests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using workbench::readFile;
using workbench::writeFile;

nlohmann::json const& listed() {
    static nlohmann::json const forms =
        nlohmann::json::parse(telmbench({"export", "--list", "--json"}).out);
    return forms;
}

/// The lines on standard error but what the plug-in says.
Lines told(ProcessResult const& result) {
    Lines lines = result.errLines();
    std::erase_if(lines, [](std::string const& line) { return !line.starts_with("telmbench: "); });
    return lines;
}

struct Refusal {
    char const* rule;
    Lines arguments;  ///< behind "export"
    char const* expected;
};

Refusal const refusals[] = {
    {"neither an entry nor a form", {}, "name an entry and a form"},
    {"no form", {"Glow"}, "name an entry and a form"},
    {"no entry", {"--format", "csv"}, "name an entry and a form"},
    {"an unknown form names the nearest",
     {"Glow", "--format", "gmt-cdt"},
     "there is no form 'gmt-cdt'; did you mean 'gmt-cpt'"},
    {"a form unlike all names the list",
     {"Glow", "--format", "zzzzzzzz"},
     "'telmbench export --list' lists the forms"},
    {"an unknown entry", {"Glob", "--format", "csv"}, "did you mean 'Glow'"},
    {"an unknown parameter",
     {"Glow", "--format", "csv", "--set", "centre=1"},
     "did you mean 'center'"},
    {"a range upside down",
     {"Glow", "--format", "csv", "--range", "1,0"},
     "the range '1,0' is not of the form MIN,MAX"},
    {"a range without end", {"Glow", "--format", "csv", "--range", "0,inf"}, "two finite numbers"},
    {"a range that is wider than a double",
     {"Glow", "--format", "csv", "--range", "-1.7e308,1.7e308"},
     "the range from -1.7e+308 to 1.7e+308 is too wide"},
    {"an error that is no number",
     {"Glow", "--format", "csv", "--error", "small"},
     "the error 'small' is no number from 1e-04 to 0.25"},
    {"an error that is too small",
     {"Glow", "--format", "csv", "--error", "1e-9"},
     "the error '1e-9' is no number from"},
    {"an error that is not a number",
     {"Glow", "--format", "csv", "--error", "nan"},
     "the error 'nan' is no number from"},
    {"an entry beside --all", {"Glow", "--all", "-o", "out"}, "KEY has no meaning beside --all"},
    {"settings beside --all",
     {"--all", "--set", "a=1", "-o", "out"},
     "--set has no meaning beside --all"},
    {"--all without a folder", {"--all"}, "name their folder by -o DIR"},
    {"--list beside --all", {"--list", "--all"}, "--all has no meaning beside --list"},
    {"an entry beside --list", {"Glow", "--list"}, "KEY has no meaning beside --list"},
    {"JSON of anything but the list",
     {"Glow", "--format", "csv", "--json"},
     "--json has no meaning beside anything but --list"},
};

TEST(Export, RefusesWithStatus2AndWritesNothing) {
    for (Refusal const& c : refusals) {
        SCOPED_TRACE(c.rule);
        Lines arguments = c.arguments;
        arguments.insert(arguments.begin(), "export");
        ProcessResult const result = telmbench(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        ASSERT_EQ(result.errLines().size(), 1U);
        EXPECT_THAT(result.errLines().front(), HasSubstr(c.expected));
    }
}

TEST(Export, RefusesAMapWithTooManyEdges) {
    ProcessResult const result =
        telmbench({"export", "Zebramap", "--format", "csv", "--set", "frequency=1e-6"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, StartsWith("telmbench: Colormaps/Zebramap as csv: the map has more "
                                       "than 10000 edges"));
}

TEST(Export, IsNotWrittenOverThePlugin) {
    ProcessResult const result =
        telmbench({"--plugin", fileBeside("prism_tinctures.telm"), "export", "Glow", "--format",
                   "csv", "-o", fileBeside("prism_tinctures.telm")});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, HasSubstr("would be written over"));
}

TEST(Export, OfAMapThatTalksHasNothingButTheFile) {
    ProcessResult const result = telmbench({"export", "BigColorMap", "--format", "csv"});
    EXPECT_THAT(result.out, StartsWith("# Colour map Colormaps/BigColorMap"));
    EXPECT_THAT(result.out, testing::Not(HasSubstr("we have colors")));
    EXPECT_THAT(result.err, HasSubstr("we have colors: 61"));
}

TEST(Export, WritesTheSameIntoAFileAsOnStandardOutput) {
    TemporaryFolder const folder;
    EXPECT_EQ(results({"export", "Hypoxia", "--format", "csv", "-o", textOf(folder / "map.csv")}),
              Lines{});
    EXPECT_EQ(folder.names(), Lines{"map.csv"});
    ProcessResult written;
    written.out = readFile(folder / "map.csv");
    EXPECT_EQ(written.outLines(), results({"export", "Hypoxia", "--format", "csv"}));
}

TEST(Export, TellsEachLossAndIsStrictWhereAsked) {
    TemporaryFolder const folder;
    writeFile(folder / "map.csv", "as it was");
    Lines const call{"export", "Topographic", "--format", "csv", "-o", textOf(folder / "map.csv")};
    Lines strict = call;
    strict.emplace_back("--strict");

    ProcessResult const refused = telmbench(strict);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(readFile(folder / "map.csv"), "as it was");
    EXPECT_EQ(refused.errLines(),
              (Lines{"telmbench: Colormaps/Topographic as csv: values below the range have "
                     "different colours in the map, and all #b2ffff in the file",
                     "telmbench: nothing is written, since --strict allows no loss, and there "
                     "is one"}));

    ProcessResult const done = telmbench(call);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.errLines(), Lines{refused.errLines().front()});
    EXPECT_NE(readFile(folder / "map.csv"), "as it was");
}

TEST(Export, IsContentWithStrictWhereNothingIsLost) {
    EXPECT_FALSE(results({"export", "Intensitymap", "--format", "csv", "--strict"}).empty());
}

TEST(Export, ListsTheFormsAsTextAndAsJson) {
    Lines const lines = results({"export", "--list"});
    nlohmann::json const forms = listed();
    ASSERT_EQ(lines.size(), forms.size() + 1);
    EXPECT_THAT(lines.front(), StartsWith("form "));
    for (std::size_t i = 0; i < forms.size(); ++i) {
        EXPECT_THAT(lines[i + 1], StartsWith(std::string(forms[i]["form"]) + " "));
        EXPECT_THAT(std::string(forms[i]["ending"]), StartsWith("."));
        for (auto const& limit : forms[i]["cannotCarry"])
            EXPECT_THAT(lines[i + 1], HasSubstr(std::string(limit)));
    }
}

/// Every form says where the file comes from, unless it says that it cannot.
TEST(Export, CarriesItsOriginInEveryForm) {
    for (auto const& form : listed()) {
        std::string const name = form["form"];
        SCOPED_TRACE(name);
        ProcessResult const result = telmbench(
            {"export", "Intensitymap", "--format", name, "--set", "startcolor=(0,0.25,0,1)"});
        ASSERT_EQ(result.status, 0) << result.err;
        if (form["cannotCarry"].dump().find("its origin") != std::string::npos) {
            EXPECT_THAT(result.err, HasSubstr("where it comes from"));
            continue;
        }
        for (std::string const& part :
             {std::string("Colormaps/Intensitymap"), std::string("telmbench " PRISM_VERSION),
              std::string("(0,0.25,0,1)"), std::string("Provides a greyscale color map."),
              "telmbench export Colormaps/Intensitymap --format " + name})
            EXPECT_THAT(result.out, HasSubstr(part));
    }
}

TEST(Export, OfAllWritesEveryEntryInEveryFormAndAPage) {
    TemporaryFolder const folder;
    ProcessResult const result = telmbench({"export", "--all", "-o", textOf(folder / "maps")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.outLines().size(), 21 * listed().size() + 1);
    for (std::string const& file : result.outLines())
        EXPECT_GT(std::filesystem::file_size(workbench::pathOf(file)), 0U) << file;
    std::string const page = readFile(folder / "maps" / "index.html");
    EXPECT_THAT(page, HasSubstr("<a href=\"csv/Glow.csv\">csv</a>"));
    EXPECT_THAT(page, HasSubstr("values below the range have different colours"));
}

TEST(Export, OfAllInOneFormIsStrictAsAWhole) {
    TemporaryFolder const folder;
    Lines call{"export", "--all", "--format", "csv", "-o", textOf(folder / "maps"), "--strict"};
    ProcessResult const refused = telmbench(call);
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(folder.names(), IsEmpty());
    EXPECT_THAT(refused.errLines().back(), HasSubstr("nothing is written"));
    call.pop_back();
    ProcessResult const done = telmbench(call);
    EXPECT_EQ(done.outLines().size(), 22U);
    EXPECT_EQ(told(done), Lines{});
}

}  // namespace
