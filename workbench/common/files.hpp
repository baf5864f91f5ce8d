/// Whole files in and out.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The bytes of a file. Throws `WorkError` that names the file and the reason.
std::string readFile(std::filesystem::path const& file);

/// All that standard input still holds. Throws `WorkError` if it cannot be read.
std::string readStandardInput();

/// Whether two names lead to one file, by whatever links and ways, or to one
/// place where a file would be made. Devices, which hold nothing, are never the
/// same.
bool isSameFile(std::filesystem::path const& a, std::filesystem::path const& b);

/// Makes a file hold these bytes. They are written beside it and renamed, so
/// that at any moment the file is the old one or the whole new one, also if the
/// program is killed; what is no regular file, such as a device, is written to
/// directly, a symbolic link stays one, and a write-protected file is left alone.
/// Throws `WorkError` that names the file and the reason; a file that stood there
/// is unharmed then.
void writeFile(std::filesystem::path const& file, std::string_view bytes);

/// Makes a folder, and those that it is in, unless it is there. Throws `WorkError`
/// that names it and the reason.
void makeFolder(std::filesystem::path const& folder);

/// A file that somebody else writes, with others beside it: a folder next to its
/// place, in which all of them are made under their own names. Until they are
/// kept nothing has happened to the file, and what is not kept goes with the
/// object.
class Draft {
public:
    /// Throws `WorkError` that names the file if nothing can be written in its
    /// place: it is a folder, a device or write-protected, or there is no folder
    /// for it.
    explicit Draft(std::filesystem::path const& file);
    Draft(Draft const&) = delete;
    Draft& operator=(Draft const&) = delete;
    ~Draft();

    /// The place of the file: where a symbolic link leads.
    std::filesystem::path const& target() const { return target_; }
    /// Where to write the file. Others that are to stay beside it go into the
    /// same folder.
    std::filesystem::path file() const;
    /// A file for the way, which never stays.
    std::filesystem::path scratch(std::string const& name) const;

    /// Moves all files into their places, the file itself last, in place of the old
    /// ones that are given. Throws `WorkError`.
    void keep(std::vector<std::filesystem::path> const& old = {});

private:
    std::filesystem::path named_;   ///< as it was asked for
    std::filesystem::path target_;  ///< where links lead
    std::filesystem::path folder_;
};

}  // namespace workbench
