/// Random bytes as the file of a plug-in.
///
/// Whatever the headers say, what is asked of the file before the system's loader
/// sees it comes to an end: a problem in words, and tables or an error.
#include "workbench/platform/libraryFile.hpp"

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "fuzz/require.hpp"
#include "workbench/platform/LibraryTables.hpp"

namespace {

/// A file in memory, with a name.
class MemoryFile {
public:
    MemoryFile() : descriptor_(memfd_create("library", 0)) {}
    void hold(void const* bytes, std::size_t size) const {
        if (ftruncate(descriptor_, 0) != 0 ||
            pwrite(descriptor_, bytes, size, 0) != static_cast<ssize_t>(size))
            std::abort();
    }
    std::string name() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static MemoryFile const file;
    file.hold(data, size);
    std::string const problem = workbench::libraryProblem(file.name());
    require(problem == workbench::libraryProblem(file.name()), "a problem is another one", problem);
    try {
        workbench::LibraryTables const tables(file.name());
        require(tables.exportedFunctions >= tables.exports.size() ||
                    tables.format == workbench::LibraryTables::Pe,
                "more names than functions", problem);
    } catch (std::runtime_error const&) {
        return 0;
    }
    return 0;
}
