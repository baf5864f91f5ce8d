/// The two ways in which a command fails.
#pragma once

#include <stdexcept>

namespace workbench {

/// The call was wrong: an unknown name, an unreadable text, bad arguments. The
/// program ends with status 2.
class CallError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The work failed: a file that cannot be written, a plug-in that does not
/// load. The program ends with status 1.
class WorkError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace workbench
