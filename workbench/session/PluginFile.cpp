#include "workbench/session/PluginFile.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/libraryFile.hpp"
#include "workbench/platform/program.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

constexpr char AnyExportBeginning[] = "TELM_API_";
constexpr char ExportBeginning[] = "TELM_API_2024_MAR_06__";

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

/// The text behind the beginning, or nothing if it begins otherwise.
std::optional<std::string> behind(std::string const& beginning, std::string const& text) {
    if (!text.starts_with(beginning))
        return {};
    return text.substr(beginning.size());
}

/// What the module calls itself. It is read from the table of exports and not from the
/// file's name, since files are renamed and copied.
std::string moduleOf(Library const& library, fs::path const& file) {
    std::vector<std::string> modules;
    std::string other;  // a plug-in's export of another interface
    for (std::string const& name : library.exports()) {
        if (auto const module = behind(ExportBeginning, name))
            modules.push_back(*module);
        else if (name.starts_with(AnyExportBeginning))
            other = name;
    }
    std::ranges::sort(modules);  // the table has an order of its own on some systems
    if (modules.size() > 1)
        throw PluginError(nameOf(file) + " exports " + ExportBeginning + modules[0] + " and " +
                          ExportBeginning + modules[1] + "; a plug-in has one of them");
    if (modules.empty() && !other.empty())
        throw PluginError(nameOf(file) + " is for another interface: it exports " + other +
                          ", and this host looks for " + ExportBeginning +
                          "NAME; build it against this host's interface");
    if (modules.empty())
        throw PluginError(nameOf(file) +
                          " is a library, but not this kind of plug-in: it lacks the export " +
                          ExportBeginning + "NAME");
    return modules.front();
}

/// Asks the library whether it fits the host.
int ask(Library const& library, std::string const& module, Orlo::VInitialization& host,
        fs::path const& file) {
    std::string const name = ExportBeginning + module;
    auto const question = library.find<int (*)(Orlo::VInitialization*)>(name.c_str());
    int const answer = question(&host);
    if (answer == Orlo::VInitialization::Incompatible)
        throw PluginError("the host answers that " + nameOf(file) +
                          " is not compatible; build it against this host's interface");
    return answer;
}

}  // namespace

PluginFile::PluginFile(fs::path const& file, Orlo::VInitialization& host)
    : path_(found(file)),
      library_(load(path_, file)),
      module_(moduleOf(*library_, file)),
      answer_(ask(*library_, module_, host, file)) {}

fs::path pluginBesideProgram() {
    return fileBesideProgram("prism_tinctures.telm");
}

}  // namespace workbench
