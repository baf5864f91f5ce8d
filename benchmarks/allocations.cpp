#include "benchmarks/allocations.hpp"

#include <array>
#include <cstdlib>
#include <new>

namespace {

/// Room of its own, since a vector would allocate while it records.
std::array<std::size_t, 65536> recorded;
std::size_t recordedCount = 0;
bool recording = false;

}  // namespace

void* operator new(std::size_t size) {
    if (recording && recordedCount < recorded.size())
        recorded[recordedCount++] = size;
    if (void* const block = std::malloc(size))
        return block;
    throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

namespace benchmarks {

std::vector<std::size_t> allocationsOf(std::function<void()> const& operation) {
    recordedCount = 0;
    recording = true;
    operation();
    recording = false;
    return {recorded.begin(), recorded.begin() + static_cast<std::ptrdiff_t>(recordedCount)};
}

void allocateAgain(std::vector<std::size_t> const& sizes) {
    static std::array<void*, recorded.size()> blocks;
    for (std::size_t i = 0; i < sizes.size(); ++i)
        blocks[i] = ::operator new(sizes[i]);
    for (std::size_t i = 0; i < sizes.size(); ++i)
        ::operator delete(blocks[i]);
}

}  // namespace benchmarks
