#include "workbench/platform/FailingAllocation.hpp"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

constexpr int Spoil = 0xdb;

std::atomic<long> live{0};
std::atomic<bool> spoils{false};
thread_local unsigned long asked = 0;
thread_local int countdown = 0;  ///< 0: nothing fails
thread_local bool failsForEver = false;
thread_local bool failed = false;

bool failsNow() noexcept {
    ++asked;
    if (countdown == 0)
        return false;
    if (countdown > 1) {
        --countdown;
        return false;
    }
    countdown = failsForEver ? 1 : 0;
    failed = true;
    return true;
}

void* allocated(std::size_t size) {
    void* const block = failsNow() ? nullptr : std::malloc(size > 0 ? size : 1);
    if (block == nullptr)
        throw std::bad_alloc();
    ++live;
    return block;
}

void* alignedBlock(std::size_t size, std::align_val_t alignment) {
    auto const width = static_cast<std::size_t>(alignment);
    void* const block =
        failsNow() ? nullptr : std::aligned_alloc(width, (size + width - 1) / width * width);
    if (block == nullptr)
        throw std::bad_alloc();
    ++live;
    return block;
}

void giveBack(void* block) noexcept {
    if (block == nullptr)
        return;
    --live;
    if (spoils)
        std::memset(block, Spoil, malloc_usable_size(block));
    std::free(block);
}

}  // namespace

// The program's own, in the place of the runtime's.
void* operator new(std::size_t size) {
    return allocated(size);
}
void* operator new[](std::size_t size) {
    return allocated(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    return alignedBlock(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return alignedBlock(size, alignment);
}
void operator delete(void* block) noexcept {
    giveBack(block);
}
void operator delete[](void* block) noexcept {
    giveBack(block);
}
void operator delete(void* block, std::size_t) noexcept {
    giveBack(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    giveBack(block);
}
void operator delete(void* block, std::align_val_t) noexcept {
    giveBack(block);
}
void operator delete[](void* block, std::align_val_t) noexcept {
    giveBack(block);
}
void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
    giveBack(block);
}
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept {
    giveBack(block);
}

namespace workbench {

bool seesAllocations() {
    return true;
}

FailingAllocation::FailingAllocation(int n, Failing mode) {
    failed = false;
    failsForEver = mode == Failing::FromThen;
    countdown = n;
}

FailingAllocation::~FailingAllocation() {
    countdown = 0;
}

bool FailingAllocation::hasFailed() const noexcept {
    return failed;
}

long liveAllocations() {
    return live;
}

unsigned long allocationsOfThread() {
    return asked;
}

SpoiledMemory::SpoiledMemory() {
    spoils = true;
}

SpoiledMemory::~SpoiledMemory() {
    spoils = false;
}

}  // namespace workbench
