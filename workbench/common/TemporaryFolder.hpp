/// Room for files that nobody keeps.
#pragma once

#include <filesystem>
#include <string>

namespace workbench {

/// A fresh folder that is gone with the object.
class TemporaryFolder {
public:
    /// Throws `WorkError` if none can be made.
    TemporaryFolder();
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;
    ~TemporaryFolder();

    std::filesystem::path const& path() const noexcept { return path_; }
    /// A file of that name, in UTF-8, in the folder.
    std::filesystem::path operator/(std::string const& name) const;

private:
    std::filesystem::path path_;
};

}  // namespace workbench
