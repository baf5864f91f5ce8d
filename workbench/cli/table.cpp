#include "workbench/cli/table.hpp"

#include <algorithm>

namespace workbench {

namespace {

std::vector<std::size_t> columnWidths(std::vector<TableRow> const& rows) {
    std::vector<std::size_t> widths;
    for (TableRow const& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    return widths;
}

}  // namespace

std::string table(std::vector<TableRow> const& rows, std::string const& indent) {
    constexpr std::size_t gap = 2;
    std::vector<std::size_t> const widths = columnWidths(rows);
    std::string text;
    for (TableRow const& row : rows) {
        std::string line = indent;
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::string(widths[i] + gap - row[i].size(), ' ');
        line.resize(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

}  // namespace workbench
