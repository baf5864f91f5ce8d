/// The page on exports: it has every map and every form of the program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "tests/support/Process.hpp"
#include "workbench/common/files.hpp"

namespace tests {
namespace {

using nlohmann::json;

json told(std::vector<std::string> const& arguments) {
    return json::parse(runProcess(programBeside("telmbench"), arguments).out);
}

std::vector<std::string> linesOf(std::string const& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line.substr(0, line.find_last_not_of('\r') + 1));
    return lines;
}

/// The cells of the tables whose first column is headed so, by row.
std::vector<std::vector<std::string>> rowsUnder(std::string const& head) {
    std::vector<std::vector<std::string>> rows;
    bool inside = false;
    for (std::string const& line : linesOf(
             workbench::readFile(std::filesystem::path(PRISM_SOURCE_DIR) / "docs/exports.md"))) {
        inside = line.starts_with("| " + head + " |") || (inside && line.starts_with("| "));
        if (!inside)
            continue;
        std::vector<std::string> cells;
        std::istringstream parts(line.substr(1));
        for (std::string cell; std::getline(parts, cell, '|');)
            cells.push_back(cell.substr(1, cell.size() - 2));
        rows.push_back(cells);
    }
    return rows;
}

TEST(ExportsPage, HasEveryFormAndNoOther) {
    std::set<std::string> expected, headed, read;
    for (json const& form : told({"export", "--list", "--json"}))
        expected.insert("`" + std::string(form["form"]) + "`");
    for (auto const& row : rowsUnder("map"))
        for (std::size_t i = 1; row.front() == "map" && i < row.size(); ++i)
            headed.insert(row[i]);
    for (auto const& row : rowsUnder("form"))
        if (row.front().starts_with('`'))
            read.insert(row.front());
    EXPECT_EQ(headed, expected);
    EXPECT_EQ(read, expected);
}

TEST(ExportsPage, HasEveryMapRightInEveryForm) {
    std::set<std::string> expected, found;
    for (json const& entry : told({"catalogue", "--json"})) {
        std::string const key = entry["key"];
        expected.insert(key.substr(key.find_last_of('/') + 1));
    }
    for (auto const& row : rowsUnder("map")) {
        if (row.front() == "map" || row.front() == "---")
            continue;
        found.insert(row.front());
        for (std::size_t i = 1; i < row.size(); ++i)
            EXPECT_TRUE(row[i].starts_with("=") || row[i].starts_with("±"))
                << row.front() << ": " << row[i];
    }
    EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace tests
