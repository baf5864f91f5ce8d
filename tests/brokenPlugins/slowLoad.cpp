/// Takes its time to be loaded.
#include <chrono>
#include <thread>

#include "tests/brokenPlugins/Healthy.hpp"

PRISM_ENTRY(Object<Grey>)

namespace {

struct Slow {
    Slow() { std::this_thread::sleep_for(std::chrono::milliseconds(150)); }
} const slow;

}  // namespace
