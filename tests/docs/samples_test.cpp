/// The samples in the documents: each does what stands beside it.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

#include "host/pointers/Typename.hpp"
#include "host/values/TypedSlot.hpp"
#include "runtime/lattice/TypeRegistry.hpp"
#include "tests/support/Process.hpp"
#include "workbench/nodes/values.hpp"

namespace tests {
namespace {

namespace fs = std::filesystem;

fs::path const root = PRISM_SOURCE_DIR;

/// The lines of all blocks of a language in a document.
std::vector<std::string> blockLines(std::string const& document, std::string const& language) {
    std::ifstream stream(root / document);
    std::vector<std::string> lines;
    bool inside = false;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with("```"))
            inside = line == "```" + language;
        else if (inside)
            lines.push_back(line);
    }
    return lines;
}

/// A call of the program as a document shows it, with what it prints.
struct Sample {
    std::string call;
    std::vector<std::string> output;
};

std::vector<Sample> samples(std::string const& document) {
    std::vector<Sample> found;
    for (std::string const& line : blockLines(document, "console")) {
        if (line.starts_with("$ telmbench ") || line.starts_with("$ awk "))
            found.push_back({line.substr(2), {}});
        else if (!found.empty())
            found.back().output.push_back(line);
    }
    return found;
}

/// The words behind the program's name: files of the tree where they are, new
/// ones in the folder.
std::vector<std::string> argumentsOf(Sample const& sample, TemporaryFolder const& folder) {
    std::istringstream words(sample.call);
    std::vector<std::string> arguments;
    std::string word;
    for (words >> word; words >> word;) {
        std::string const before = arguments.empty() ? "" : arguments.back();
        bool const isOutput = before == "-o" || before == "--legend" ||
                              fs::exists(folder / word);  // which another sample has made
        bool const isOurs = word.find('/') != std::string::npos && fs::exists(root / word);
        arguments.push_back(isOutput ? (folder / word).string()
                            : isOurs ? (root / word).string()
                                     : word);
    }
    return arguments;
}

/// Carries a sample out: the program itself, or a call that makes data for it.
ProcessResult carryOut(Sample const& sample, TemporaryFolder const& folder) {
    if (!sample.call.starts_with("awk "))
        return runProcess(programBeside("telmbench"), argumentsOf(sample, folder));
    std::size_t const arrow = sample.call.find(" >");
    std::string const target = (folder / sample.call.substr(arrow + 2)).string();
    return runProcess("/bin/sh", {"-c", "cd '" + root.string() + "'; " +
                                            sample.call.substr(0, arrow) + " >'" + target + "'"});
}

/// Grids of data need GDAL, which the Windows build has not.
bool runsHere(Sample const& sample) {
    return PRISM_HAS_GDAL ||
           !(sample.call.starts_with("telmbench color ") || sample.call.starts_with("awk "));
}

TEST(Samples, OfTheReadmePrintWhatStandsBelowThem) {
    TemporaryFolder const folder;
    std::size_t withOutput = 0;
    for (Sample const& sample : samples("README.md")) {
        if (!runsHere(sample))
            continue;
        SCOPED_TRACE(sample.call);
        ProcessResult const result = carryOut(sample, folder);
        EXPECT_EQ(result.status, 0) << result.err;
        if (!sample.output.empty()) {
            EXPECT_EQ(result.outLines(), sample.output);
            ++withOutput;
        }
    }
    EXPECT_GE(withOutput, 2U);
}

TEST(Samples, ANetworkRunsAsItIsShown) {
    TemporaryFolder const folder;
    std::ofstream script(folder / "shown.telm", std::ios::binary);
    for (std::string const& line : blockLines("docs/saved-networks.md", "telm"))
        script << line << "\n";
    script.close();
    ProcessResult const result = runProcess(
        programBeside("telmbench"),
        {"run", (folder / "shown.telm").string(), "-o", (folder / "shown.png").string()});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.err, "") << "the shown network deserves no remark";
    EXPECT_TRUE(fs::exists(folder / "shown.png"));
}

/// The cells of the tables whose rows begin with a type, without back quotes.
std::vector<std::vector<std::string>> typeRows() {
    std::ifstream stream(root / "docs/value-types.md");
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(stream, line);) {
        if (!line.starts_with("| `"))
            continue;
        std::vector<std::string> cells;
        std::istringstream parts(line.substr(1));
        for (std::string cell; std::getline(parts, cell, '|');) {
            std::size_t const open = cell.find('`');
            cells.push_back(open == std::string::npos
                                ? std::string()
                                : cell.substr(open + 1, cell.rfind('`') - open - 1));
        }
        rows.push_back(cells);
    }
    return rows;
}

std::map<std::string, std::type_info const*> const types{
    {"double", &typeid(double)},
    {"int", &typeid(int)},
    {"rgba_float_t", &typeid(Tessar::rgba_float_t)},
    {"Enum", &typeid(Orlo::Enum)},
    {"FlagList", &typeid(Orlo::FlagList)},
    {"Range", &typeid(Orlo::Range)},
    {"VTime", &typeid(Orlo::VTime)},
    {"bool", &typeid(bool)},
    {"Point", &typeid(workbench::Point)},
    {"Box", &typeid(workbench::Box)},
    {"Pair", &typeid(workbench::Pair)},
    {"Identifier", &typeid(workbench::Identifier)},
    {"Nothing", &typeid(workbench::Nothing)},
    {"string", &typeid(std::string)},
};

TEST(Samples, OfValueTypesAreReadAndWrittenAsTheTableSays) {
    workbench::registerNodeTypes();
    std::map<std::string, std::type_info const*> missing = types;
    for (std::vector<std::string> const& row : typeRows()) {
        ASSERT_GE(row.size(), 4U);
        SCOPED_TRACE(row[0] + " " + row[1]);
        ASSERT_TRUE(types.contains(row[0]));
        missing.erase(row[0]);
        auto const creator = Orlo::findValueCreator(Nucleo::Typename(*types.at(row[0])));
        ASSERT_TRUE(creator);
        bool ok = false;
        Orlo::ValuePtr const value = creator->create(row[1], ok);
        EXPECT_TRUE(ok);
        EXPECT_EQ(value->text(), row[2]);
    }
    EXPECT_TRUE(missing.empty()) << missing.begin()->first << " has no row";
}

}  // namespace
}  // namespace tests
