/// Where the results of a command go.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string_view>

namespace workbench {

/// The program's standard output.
///
/// Plug-ins write to standard output too. Results that another program reads
/// are kept apart from that: while an output that stands apart lives, whatever
/// is written to standard output ends on standard error, and only `write`
/// reaches the real one. Make it before the plug-in is loaded and let it outlive
/// the plug-in. Threads: one at a time, and one object at a time.
class StandardOutput {
public:
    /// Throws `WorkError` if there is no standard output or no standard error.
    explicit StandardOutput(bool apart);
    StandardOutput(StandardOutput const&) = delete;
    StandardOutput& operator=(StandardOutput const&) = delete;
    ~StandardOutput();

    /// Writes results. Throws `WorkError` if they cannot be written.
    void write(std::string_view text);

private:
    std::FILE* apart_ = nullptr;  ///< the real standard output, or null
};

/// Whether a file is the standard output of the program under another name, such
/// as `/dev/stdout`. Systems without such names say no. To be asked before an output
/// that stands apart takes the name away.
bool isStandardOutput(std::filesystem::path const& file);

}  // namespace workbench
