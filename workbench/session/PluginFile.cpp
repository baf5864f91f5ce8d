#include "workbench/session/PluginFile.hpp"

#include <string>
#include <system_error>

#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/libraryFile.hpp"
#include "workbench/platform/program.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

constexpr char ExportName[] = "TELM_API_2024_MAR_06__prism_tinctures";

std::string nameOf(fs::path const& file) {
    return "the plug-in " + inQuotes(textOf(file), 1000);
}

/// The absolute path of a file that is there.
fs::path found(fs::path const& file) {
    std::error_code error;
    fs::path const path = fs::absolute(file, error);
    fs::file_status const status = fs::status(path, error);
    if (fs::is_directory(status))
        throw PluginError(nameOf(file) + " is a folder; --plugin FILE names the library itself");
    if (error && status.type() != fs::file_type::not_found)
        throw PluginError(nameOf(file) +
                          " cannot be reached: " + error.default_error_condition().message());
    if (!fs::is_regular_file(status))
        throw PluginError(nameOf(file) + " does not exist; --plugin FILE names another");
    return path;
}

std::unique_ptr<Library> load(fs::path const& path, fs::path const& file) {
    try {
        if (std::string const problem = libraryProblem(path); !problem.empty())
            throw LibraryError(problem);
        return std::make_unique<Library>(path);
    } catch (LibraryError const& error) {
        throw PluginError(nameOf(file) + " cannot be loaded as a library: " + error.what());
    }
}

/// Asks the library whether it fits the host.
int ask(Library const& library, Orlo::VInitialization& host, fs::path const& file) {
    auto const question = library.find<int (*)(Orlo::VInitialization*)>(ExportName);
    if (question == nullptr)
        throw PluginError(nameOf(file) +
                          " is a library, but not this kind of plug-in: it lacks the export " +
                          ExportName);
    int const answer = question(&host);
    if (answer == Orlo::VInitialization::Incompatible)
        throw PluginError("the host answers that " + nameOf(file) +
                          " is not compatible; build it against this host's interface");
    return answer;
}

}  // namespace

PluginFile::PluginFile(fs::path const& file, Orlo::VInitialization& host)
    : path_(found(file)), library_(load(path_, file)), answer_(ask(*library_, host, file)) {}

fs::path pluginBesideProgram() {
    return fileBesideProgram("prism_tinctures.telm");
}

}  // namespace workbench
