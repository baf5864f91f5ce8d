/// Every form byte for byte, and what each loses.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/workbench/cli/telmbench.hpp"
#include "workbench/common/files.hpp"

namespace {

using namespace tests;
using testing::HasSubstr;
using workbench::readFile;

nlohmann::json const& listed() {
    static nlohmann::json const forms =
        nlohmann::json::parse(telmbench({"export", "--list", "--json"}).out);
    return forms;
}

std::filesystem::path const Examples =
    std::filesystem::path(PRISM_SOURCES) / "tests/workbench/export/examples";

/// A map of classes, a smooth one, and one whose components go beyond 0 to 1.
struct Example {
    char const* name;
    Lines arguments;  ///< behind "export"
};

Example const examples[] = {
    {"classes", {"HypoxiaLegend", "--range", "0,7"}},
    {"smooth", {"Glow", "--error", "0.02"}},
    {"beyond", {"RedGreen", "--error", "0.02", "--alpha"}},
};

/// The version of the program is not what the examples are about.
std::string withoutVersion(std::string text) {
    std::string const version = "telmbench " PRISM_VERSION;
    for (std::size_t at = 0; (at = text.find(version, at)) != std::string::npos;)
        text.replace(at, version.size(), "telmbench VERSION");
    return text;
}

/// scripts/write-export-examples makes the files anew; look at what has changed.
TEST(Forms, AreByteForByteAsTheExamples) {
    for (auto const& form : listed())
        for (Example const& example : examples) {
            std::string const name = form["form"], ending = form["ending"];
            SCOPED_TRACE(name + " " + example.name);
            TemporaryFolder const folder;
            Lines call{"export", "--format", name, "-o", textOf(folder / "file")};
            call.insert(call.end(), example.arguments.begin(), example.arguments.end());
            ProcessResult const result = telmbench(call);
            ASSERT_EQ(result.status, 0) << result.err;
            std::filesystem::path const file =
                Examples / (std::string(example.name) + "." + name + ending);
            ASSERT_TRUE(std::filesystem::exists(file)) << file;
            EXPECT_EQ(withoutVersion(readFile(folder / "file")), readFile(file));
        }
}

struct Loss {
    char const* rule;
    Lines arguments;  ///< behind "export"
    char const* expected;
};

Loss const losses[] = {
    {"alpha that varies",
     {"LogRedGreen", "--format", "gmt-cpt"},
     "the map's alpha is left out, and all colours are opaque; --alpha keeps it"},
    {"alpha that is neither 0 nor 1",
     {"Monochrome", "--format", "csv", "--set", "color=(1,0,0,0.5)"},
     "the map's alpha is left out"},
    {"alpha that the form has not",
     {"LogRedGreen", "--format", "gnuplot", "--alpha"},
     "the form has no alpha, and all colours are opaque"},
    {"a colour below that is another than the first",
     {"Zebramap", "--format", "svg", "--set", "phase=0.5"},
     "values below the range have"},
    {"colours below that are not drawn",
     {"Hypsometric", "--format", "grass-rules"},
     "values below the range are not drawn, and have #1a1a1a in the map"},
    {"colours above that are not drawn",
     {"Hypsometric", "--format", "grass-rules"},
     "values above the range are not drawn, and have #cccce5 in the map"},
    {"no number", {"Hypoxia", "--format", "gnuplot"}, "no number has no colour, and has #0040e5"},
    {"components beyond 0 to 1",
     {"RedGreen", "--format", "mpl-py"},
     "the map's components go beyond 0 to 1, and are cut there"},
    {"edges", {"Hypoxia", "--format", "gdal-txt"}, "hard edges stand near their places"},
    {"stops",
     {"BigColorMap", "--format", "blender-py"},
     "the map takes 61 stops, and the form holds 32"},
    {"steepness",
     {"Zebramap", "--format", "imagej-lut", "--set", "frequency=0.02"},
     "the map is steeper in places than 256 evenly spaced colours, which are up to"},
    {"data values",
     {"Glow", "--format", "css", "--range", "0,1000"},
     "the form has places from 0 to 1, and no data values"},
    {"the origin",
     {"Glow", "--format", "imagej-lut"},
     "the form has no room for where it comes from"},
    {"narrow pieces",
     {"DopplerMap", "--format", "ggr"},
     "pieces narrower than 1e-09 of the range are left out"},
};

TEST(Forms, TellWhatTheyLoseAndRefuseItWhereAsked) {
    for (Loss const& c : losses) {
        SCOPED_TRACE(c.rule);
        Lines call = c.arguments;
        call.insert(call.begin(), "export");
        ProcessResult const done = telmbench(call);
        EXPECT_EQ(done.status, 0);
        EXPECT_NE(done.out, "");
        EXPECT_THAT(done.err, HasSubstr(c.expected));
        call.emplace_back("--strict");
        ProcessResult const refused = telmbench(call);
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.out, "");
        EXPECT_THAT(refused.err, HasSubstr("nothing is written"));
    }
}

Lines const kept[] = {
    {"LogRedGreen", "--format", "csv", "--alpha"},
    {"Hypsometric", "--format", "mpl-py"},
    {"Hypsometric", "--format", "gmt-cpt"},
    {"Hypoxia", "--format", "paraview-json"},
    {"Hypsometric", "--format", "json", "--range", "-1000,1000"},
};

TEST(Forms, TellNothingWhereTheyHoldEverything) {
    for (Lines const& arguments : kept) {
        Lines call = arguments;
        call.insert(call.begin(), {"export", "--strict"});
        ProcessResult const result = telmbench(call);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "") << arguments.front();
    }
}

/// Two neighbouring classes have no colour between them, in any form that has lines.
TEST(Forms, NeverBlendClasses) {
    for (auto const& form : listed()) {
        std::string const name = form["form"];
        for (std::string const& line :
             telmbench({"export", "HypoxiaLegend", "--format", name}).outLines())
            // Between the first two classes, #338000 and #00ff00.
            for (char const* between : {"#1abf00", "#1ac000", "26 192 0", "26,192,0", "26:192:0"})
                EXPECT_EQ(line.find(between), std::string::npos) << name << ": " << line;
    }
}

}  // namespace
