/// Where threads wait for each other.
#pragma once

#include <atomic>
#include <thread>

namespace tests {

/// A barrier for a fixed number of threads, to be used any number of times.
///
/// It spins, and gives way while it does: `std::barrier` and all that waits on an
/// atomic lose wake-ups in the Windows C++ runtime, which has no futexes, and
/// the program then stands still for ever. [any]
class Rendezvous {
public:
    explicit Rendezvous(unsigned threads) : threads_(threads) {}

    /// Returns as soon as all threads have come.
    void arriveAndWait() {
        unsigned const round = round_.load();
        if (arrived_.fetch_add(1) + 1 == threads_) {
            arrived_.store(0);
            round_.store(round + 1);
            return;
        }
        while (round_.load() == round)
            std::this_thread::yield();
    }

private:
    unsigned const threads_;
    std::atomic<unsigned> arrived_{0};
    std::atomic<unsigned> round_{0};
};

}  // namespace tests
