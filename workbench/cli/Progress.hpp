/// What a person at a terminal sees of long work.
#pragma once

#include <string>

namespace workbench {

/// A line on standard error that tells how far the work is, and goes with the
/// object. In a pipe or a file there is none. Threads: one at a time.
class Progress {
public:
    explicit Progress(std::string label);
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;
    ~Progress();

    /// Shows that there is work whose end nobody can foretell.
    void begin();
    /// Shows the part that is done, from 0 to 1.
    void show(double part);

private:
    std::string label_;
    bool visible_;
    int shown_ = -1;  ///< the percentage on the line, or -1 for no line
};

}  // namespace workbench
