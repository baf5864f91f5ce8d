/// Libraries, loaded and unloaded.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace workbench {

/// Why the system does not load a library, without the library's name.
class LibraryError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A library in the process, from its construction to its destruction. Threads:
/// as those of the system's loader.
class Library {
public:
    /// Loads it, and runs its initialisers. Throws `LibraryError`.
    explicit Library(std::filesystem::path const& file);
    Library(Library const&) = delete;
    Library& operator=(Library const&) = delete;
    ~Library();

    /// What it exports by that name, or null.
    template <class Function>
    Function find(char const* name) const {
        return reinterpret_cast<Function>(symbol(name));
    }

    /// The names of all that it exports, in the order of its table.
    std::vector<std::string> exports() const;

private:
    void* symbol(char const* name) const;

    void* handle_;
};

}  // namespace workbench
