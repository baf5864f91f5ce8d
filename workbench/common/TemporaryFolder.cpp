#include "workbench/common/TemporaryFolder.hpp"

#include <random>
#include <system_error>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"

namespace workbench {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
    : path_(fs::temp_directory_path() / ("prism-" + std::to_string(std::random_device()()))) {
    std::error_code error;
    if (!fs::create_directory(path_, error))
        throw WorkError("cannot make the folder " + inQuotes(textOf(path_), 1000) +
                        (error ? ": " + error.default_error_condition().message() : ""));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

fs::path TemporaryFolder::operator/(std::string const& name) const {
    return path_ / pathOf(name);
}

}  // namespace workbench
