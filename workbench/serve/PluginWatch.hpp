/// Plug-ins under work: their files change while they are in use.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// A folder that nobody else writes to, among the system's temporary files. It goes
/// with the object, and all that is in it.
class PrivateFolder {
public:
    /// Throws `WorkError` if it cannot be made.
    PrivateFolder();
    PrivateFolder(PrivateFolder const&) = delete;
    PrivateFolder& operator=(PrivateFolder const&) = delete;
    ~PrivateFolder();

    std::filesystem::path const& path() const noexcept { return path_; }

private:
    std::filesystem::path path_;
};

/// Copies of plug-ins' files, and word of when the files are others.
///
/// A linker that writes into a file that is loaded kills the process on Linux, and is
/// refused on Windows; a copy is nobody's but ours. Each turn has copies of its own,
/// so that those of the last good one stay until the next. Threads: one at a time.
class PluginWatch {
public:
    explicit PluginWatch(std::vector<std::filesystem::path> files);

    /// Whether the files are others than those copied last, and hold still since this
    /// was asked before.
    bool hasChanged();

    /// Copies the files as they are now. Empty if they hold the same bytes as the
    /// copies in use, or are others again by the end of it. Throws `WorkError` with the
    /// name of a file that cannot be read.
    std::optional<std::vector<std::filesystem::path>> copy();

    /// The last copies are those in use from now on; those before them go.
    void keep();
    /// The last copies are of no use and go.
    void drop();

    /// The copies in use; empty before the first.
    std::vector<std::filesystem::path> const& inUse() const noexcept { return inUse_; }

    /// A message in which the copies go by the names of their files.
    std::string ofFiles(std::string message) const;

private:
    /// What tells one state of a file from another without reading it.
    struct Stamp {
        std::uintmax_t size = 0;
        std::filesystem::file_time_type time = {};

        bool operator==(Stamp const&) const = default;
    };

    std::vector<Stamp> stamps() const;
    bool areSame(std::vector<std::filesystem::path> const& a,
                 std::vector<std::filesystem::path> const& b) const;

    std::vector<std::filesystem::path> files_;
    PrivateFolder folder_;
    std::vector<Stamp> copied_;
    std::vector<Stamp> seen_;
    std::vector<std::filesystem::path> inUse_;
    std::vector<std::filesystem::path> last_;
    unsigned turn_ = 0;
};

}  // namespace workbench
