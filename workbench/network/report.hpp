/// What went wrong while a script was executed.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace workbench {

/// One line that could not be executed, or a remark on one.
struct Complaint {
    std::size_t line;       ///< number of the line in the script
    std::string text;       ///< the line as it stands; empty for a remark on it
    std::string reason;     ///< what is wrong, and where there is one, the remedy
    bool isFailure = true;  ///< false for what deserves a look but stopped nothing
};

/// `FILE:LINE: 'TEXT': REASON`, on one line whatever the text holds.
std::string reportOf(std::filesystem::path const& file, Complaint const& complaint);

/// Whether any of them is a failure.
bool anyFailure(std::vector<Complaint> const& complaints);

}  // namespace workbench
