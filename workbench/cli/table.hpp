/// Columns of text.
#pragma once

#include <string>
#include <vector>

namespace workbench {

using TableRow = std::vector<std::string>;

/// The rows as lines, each behind the indent, with columns as wide as their
/// widest text and two blanks between them.
std::string table(std::vector<TableRow> const& rows, std::string const& indent);

}  // namespace workbench
