/// Consumers on threads of their own.
#pragma once

#include <algorithm>
#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace tests {

/// Two threads that do the same again and again until the object goes. How far
/// they are is told without ordering anything between the threads, so that it
/// hides no race.
class Readers {
public:
    explicit Readers(std::function<void()> const& pass) {
        for (auto& count : passes_)
            threads_.emplace_back([this, &count, pass] {
                while (!ends_.load(std::memory_order_relaxed)) {
                    pass();
                    count.fetch_add(1, std::memory_order_relaxed);
                }
            });
    }
    Readers(Readers const&) = delete;
    Readers& operator=(Readers const&) = delete;
    ~Readers() {
        ends_.store(true, std::memory_order_relaxed);
        for (std::thread& thread : threads_)
            thread.join();
    }

    /// How often the slower one is through.
    int passes() const {
        return std::min(passes_[0].load(std::memory_order_relaxed),
                        passes_[1].load(std::memory_order_relaxed));
    }

private:
    std::atomic<bool> ends_{false};
    std::atomic<int> passes_[2]{};
    std::vector<std::thread> threads_;
};

/// Calls `work` with 0, 1, 2, ... some hundred times, and until the readers have
/// seen something of it.
inline void whileReading(Readers const& readers, std::function<void(unsigned)> const& work) {
    constexpr unsigned rounds = 200;
    constexpr int passes = 50;
    for (unsigned round = 0; round < rounds || readers.passes() < passes; ++round)
        work(round);
}

}  // namespace tests
