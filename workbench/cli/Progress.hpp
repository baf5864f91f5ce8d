/// What a person at a terminal sees of long work.
#pragma once

#include <chrono>
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
    /// Shows the part that is done, from 0 to 1, and after a while how long the
    /// rest will take.
    void show(double part);

private:
    using Clock = std::chrono::steady_clock;

    std::string remaining(double part) const;
    void print(std::string const& line);

    std::string label_;
    bool visible_;
    Clock::time_point start_ = Clock::now();
    std::string shown_;  ///< what stands on the line
};

}  // namespace workbench
