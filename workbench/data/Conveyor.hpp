/// Work on a grid by all processors.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <future>
#include <thread>
#include <utility>
#include <vector>

#include "workbench/data/Cells.hpp"

namespace workbench {

/// Windows of a grid, read one after the other by the thread that asks for
/// results, each worked on by a thread of its own, and handed over in their
/// order. A few are on the way at a time, whatever the grid's size, and their
/// memory is used again. Threads: one at a time.
template <class Result>
class Conveyor {
public:
    using Read = std::function<void(Window const&, Result&)>;
    using Work = std::function<void(Result&)>;

    /// `read` runs on the caller's thread, `work` on others, both on the same
    /// result, which another window may have used before.
    Conveyor(std::vector<Window> windows, Read read, Work work)
        : windows_(std::move(windows)),
          read_(std::move(read)),
          work_(std::move(work)),
          slots_(workers() + 1) {}
    Conveyor(Conveyor const&) = delete;
    Conveyor& operator=(Conveyor const&) = delete;
    ~Conveyor() = default;  // waits for what is on the way

    std::vector<Window> const& windows() const { return windows_; }

    /// The result for the next window, which stays as it is until the next call;
    /// null behind the last one. Throws what reading or working threw.
    Result const* next() {
        for (; begun_ < windows_.size() && begun_ - done_ < slots_.size(); ++begun_)
            begin(windows_[begun_], slots_[begun_ % slots_.size()]);
        if (done_ == begun_)
            return nullptr;
        Slot& slot = slots_[done_++ % slots_.size()];
        slot.work.get();
        return &slot.result;
    }

private:
    struct Slot {
        Result result;
        std::future<void> work;  ///< dies first, and waits for its thread
    };

    /// More would need more memory, and reading keeps few busy.
    static std::size_t workers() { return std::clamp(std::thread::hardware_concurrency(), 1U, 8U); }

    void begin(Window const& window, Slot& slot) {
        read_(window, slot.result);
        slot.work = std::async(std::launch::async, [this, &slot] { work_(slot.result); });
    }

    std::vector<Window> windows_;
    Read read_;
    Work work_;
    std::size_t begun_ = 0;  ///< windows that were read
    std::size_t done_ = 0;   ///< windows that were handed over
    std::vector<Slot> slots_;
};

}  // namespace workbench
