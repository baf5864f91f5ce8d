#include "workbench/network/report.hpp"

#include <algorithm>

#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"

namespace workbench {

std::string reportOf(std::filesystem::path const& file, Complaint const& complaint) {
    std::string const place = textOf(file) + ":" + std::to_string(complaint.line) + ": ";
    std::string const text = complaint.text.empty() ? "" : inQuotes(complaint.text) + ": ";
    return place + text + complaint.reason;
}

bool anyFailure(std::vector<Complaint> const& complaints) {
    return std::ranges::any_of(complaints, &Complaint::isFailure);
}

}  // namespace workbench
