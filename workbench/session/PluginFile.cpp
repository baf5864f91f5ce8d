#include "workbench/session/PluginFile.hpp"

#include <string>

#include "workbench/common/paths.hpp"
#include "workbench/platform/program.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

constexpr char ExportName[] = "TELM_API_2024_MAR_06__prism_tinctures";

std::string nameOf(fs::path const& file) {
    return "the plug-in '" + textOf(file) + "'";
}

/// The absolute path of a file that is there.
fs::path found(fs::path const& file) {
    fs::path const path = fs::absolute(file);
    if (fs::is_directory(path))
        throw PluginError(nameOf(file) + " is a folder; --plugin FILE names the library itself");
    if (!fs::is_regular_file(path))
        throw PluginError(nameOf(file) + " does not exist; --plugin FILE names another");
    return path;
}

std::unique_ptr<Library> load(fs::path const& path, fs::path const& file) {
    try {
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
