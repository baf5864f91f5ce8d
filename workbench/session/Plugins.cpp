#include "workbench/session/Plugins.hpp"

#include <algorithm>
#include <stdexcept>
#include <system_error>

#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/libraryFile.hpp"

namespace workbench {

namespace {

namespace fs = std::filesystem;

std::string quoted(fs::path const& file) {
    return inQuotes(textOf(file), 1000);
}

/// The plug-ins in a folder, in the order of their names.
std::vector<fs::path> pluginsIn(fs::path const& folder) {
    std::vector<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator each(folder, error), end; !error && each != end;
         each.increment(error))
        if (each->path().extension() == PluginEnding && beginsAsLibrary(each->path()))
            found.push_back(each->path());
    if (error)
        throw PluginError("the folder " + quoted(folder) +
                          " cannot be read: " + error.default_error_condition().message());
    if (found.empty())
        throw PluginError("the folder " + quoted(folder) +
                          " holds no plug-in: no library of this system with a name in " +
                          PluginEnding);
    std::ranges::sort(found);
    return found;
}

void refuseTwice(std::vector<fs::path> const& files) {
    for (auto file = files.begin(); file != files.end(); ++file)
        if (std::any_of(files.begin(), file,
                        [&](auto& earlier) { return isSameFile(earlier, *file); }))
            throw PluginError("the plug-in " + quoted(*file) + " is named twice; name it once");
}

}  // namespace

std::vector<fs::path> pluginFiles(std::vector<fs::path> const& named) {
    if (named.empty())
        return {pluginBesideProgram()};
    std::vector<fs::path> files;
    for (fs::path const& name : named) {
        std::error_code error;
        if (fs::is_directory(name, error))
            std::ranges::copy(pluginsIn(name), std::back_inserter(files));
        else
            files.push_back(name);
    }
    return files;
}

Plugins::Plugins(std::vector<fs::path> const& files, Orlo::VInitialization& host) {
    refuseTwice(files);
    try {
        for (fs::path const& file : files)
            load(file, host);
    } catch (...) {
        unload();
        throw;
    }
}

Plugins::~Plugins() {
    unload();
}

void Plugins::unload() {
    while (!plugins_.empty())
        plugins_.pop_back();
}

void Plugins::load(fs::path const& file, Orlo::VInitialization& host) {
    std::size_t const before = Orlo::catalogue().size();
    plugins_.push_back(std::make_unique<PluginFile>(file, host));
    takeEntries(before, *plugins_.back());
}

void Plugins::takeEntries(std::size_t first, PluginFile const& plugin) {
    std::vector<Orlo::WeakCreatorPtr> const all = Orlo::catalogue();
    std::size_t const earlier = entries_.size();
    for (std::size_t i = first; i < all.size(); ++i) {
        std::string const key = all[i]->keyname("/");
        for (std::size_t j = 0; j < earlier; ++j)
            if (entries_[j]->keyname("/") == key)
                throw PluginError("the plug-in " + quoted(plugin.path()) + " has the entry " +
                                  inQuotes(key) + ", which " + quoted(providers_[j]->path()) +
                                  " has too; load one of them");
        entries_.push_back(all[i]);
        providers_.push_back(&plugin);
    }
}

PluginFile const& Plugins::pluginOf(Orlo::VCreatorBase const& entry) const {
    for (std::size_t i = 0; i < entries_.size(); ++i)
        if (entries_[i].get() == &entry)
            return *providers_[i];
    throw std::out_of_range("the entry is of no plug-in that is loaded here");
}

}  // namespace workbench
