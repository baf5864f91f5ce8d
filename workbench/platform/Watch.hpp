/// What a thread asks of the system.
///
/// The program that links this has locks, files and an environment of its own,
/// which all shared libraries of the process use where the system lets them.
#pragma once

#include <string>
#include <vector>

namespace workbench {

/// Counts what this thread asks for, from its construction on. One object of a
/// thread at a time.
class Watch {
public:
    Watch();
    Watch(Watch const&) = delete;
    Watch& operator=(Watch const&) = delete;
    ~Watch();

    /// Whether this program sees what its libraries ask for. If not, nothing is
    /// counted.
    static bool sees();

    /// How often a lock was taken.
    unsigned locks() const;
    /// The files that were opened and the variables of the environment that were
    /// read or written: the first few of them.
    std::vector<std::string> touched() const;
};

}  // namespace workbench
