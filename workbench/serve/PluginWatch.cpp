#include "workbench/serve/PluginWatch.hpp"

#include <algorithm>
#include <random>
#include <system_error>

#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"

namespace workbench {

namespace fs = std::filesystem;

namespace {

/// Takes the folders of some copies away, as far as they can be.
void remove(std::vector<fs::path> const& copies) {
    std::error_code ignored;
    for (fs::path const& copy : copies)
        fs::remove_all(copy.parent_path(), ignored);
}

}  // namespace

PrivateFolder::PrivateFolder() {
    std::error_code error;
    fs::path const place = fs::temp_directory_path(error);
    std::random_device random;
    for (int attempt = 0; attempt < 16 && !error; ++attempt) {
        path_ = place / ("telmbench-" + std::to_string(random()) + std::to_string(random()));
        if (fs::create_directory(path_, error)) {
            fs::permissions(path_, fs::perms::owner_all, error);
            return;
        }
    }
    throw WorkError("no folder for copies of the plug-in can be made in " +
                    inQuotes(textOf(place), 1000));
}

PrivateFolder::~PrivateFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

PluginWatch::PluginWatch(std::vector<fs::path> files) : files_(std::move(files)) {}

std::vector<PluginWatch::Stamp> PluginWatch::stamps() const {
    std::vector<Stamp> all;
    for (fs::path const& file : files_) {
        std::error_code noSize, noTime;
        Stamp const stamp{fs::file_size(file, noSize), fs::last_write_time(file, noTime)};
        all.push_back(noSize || noTime ? Stamp{} : stamp);
    }
    return all;
}

bool PluginWatch::hasChanged() {
    std::vector<Stamp> now = stamps();
    bool const holdsStill = now == seen_;
    seen_ = std::move(now);
    return holdsStill && seen_ != copied_;
}

std::optional<std::vector<fs::path>> PluginWatch::copy() {
    copied_ = stamps();
    last_.clear();
    ++turn_;
    for (std::size_t i = 0; i < files_.size(); ++i) {
        fs::path const folder = folder_.path() / (std::to_string(turn_) + "-" + std::to_string(i));
        makeFolder(folder);
        last_.push_back(folder / files_[i].filename());
        writeFile(last_.back(), readFile(files_[i]));
    }
    bool const areOthersAgain = stamps() != copied_;
    if (areOthersAgain)
        copied_.clear();
    if (!areOthersAgain && !areSame(last_, inUse_))
        return last_;
    drop();
    return std::nullopt;
}

bool PluginWatch::areSame(std::vector<fs::path> const& a, std::vector<fs::path> const& b) const {
    return std::ranges::equal(a, b, [](fs::path const& one, fs::path const& other) {
        return readFile(one) == readFile(other);
    });
}

void PluginWatch::keep() {
    remove(inUse_);
    inUse_ = std::move(last_);
    last_.clear();
}

void PluginWatch::drop() {
    remove(last_);
    last_.clear();
}

std::string PluginWatch::ofFiles(std::string message) const {
    for (std::vector<fs::path> const* const copies : {&inUse_, &last_})
        for (std::size_t i = 0; i < copies->size(); ++i) {
            std::string const name = textOf((*copies)[i]);
            for (std::size_t at = 0; (at = message.find(name, at)) != std::string::npos;)
                message.replace(at, name.size(), textOf(files_[i]));
        }
    return message;
}

}  // namespace workbench
