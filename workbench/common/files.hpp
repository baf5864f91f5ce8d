/// Whole files in and out.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

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

}  // namespace workbench
