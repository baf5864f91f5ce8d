/// Files that commands read and make.
#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>
#include <vector>

#include "workbench/picture/Image.hpp"
#include "workbench/platform/StandardOutput.hpp"

namespace workbench {

/// An option, or an argument, whose text in UTF-8 names a file. The one place
/// where such a text becomes a path. An empty text is a `CallError`.
CLI::Option* addFile(CLI::App& command, std::string const& name, std::filesystem::path& file,
                     std::string const& description);

/// The same for an option that may be given several times.
CLI::Option* addFiles(CLI::App& command, std::string const& name,
                      std::vector<std::filesystem::path>& files, std::string const& description);

/// Throws `CallError` if a file that is to be written is one of those that the
/// command reads, under whatever name.
void checkOutput(std::filesystem::path const& output,
                 std::vector<std::filesystem::path> const& inputs);

/// Where a command's files go: to the file system, or to standard output if a
/// file's name leads there. That is then kept apart from what plug-ins write.
/// Make it before the plug-in is loaded and let it outlive the plug-in.
class OutputFiles {
public:
    explicit OutputFiles(std::vector<std::filesystem::path> const& files);

    /// Throws `WorkError` that names the file and the reason.
    void write(std::filesystem::path const& file, std::string const& bytes);
    /// The same, as a PNG file.
    void write(std::filesystem::path const& file, Image const& picture);

private:
    std::vector<std::filesystem::path> standardOutputs_;  ///< those files that are it
    StandardOutput output_;
};

}  // namespace workbench
