/// Copying a counted pointer and letting go of the copy.
#include <atomic>
#include <memory>

#include "benchmarks/groups.hpp"
#include "host/pointers/StrongPtr.hpp"

namespace benchmarks {

namespace {

class Counted : public Nucleo::ReferenceBase<Counted> {};

void copyStrongPtr(benchmark::State& state) {
    Nucleo::StrongPtr<Counted, Counted> const original(new Counted);
    for ([[maybe_unused]] auto _ : state) {
        Nucleo::StrongPtr<Counted, Counted> copy(original);
        benchmark::DoNotOptimize(copy.get());
    }
    state.SetItemsProcessed(state.iterations());
}

void copySharedPtr(benchmark::State& state) {
    auto const original = std::make_shared<int>(0);
    for ([[maybe_unused]] auto _ : state) {
        std::shared_ptr<int> copy(original);
        benchmark::DoNotOptimize(copy.get());
    }
    state.SetItemsProcessed(state.iterations());
}

void increment(benchmark::State& state) {
    std::atomic<int> count{0};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(count.fetch_add(1));
    state.SetItemsProcessed(state.iterations());
}

}  // namespace

Group pointers() {
    benchmark::RegisterBenchmark("StrongPtr", copyStrongPtr);
    benchmark::RegisterBenchmark("shared_ptr", copySharedPtr);
    benchmark::RegisterBenchmark("increment", increment);
    return {"Copy a counted pointer, let the copy go",
            {"`std::shared_ptr`", "one atomic increment"},
            {{"`StrongPtr`", "StrongPtr", {"shared_ptr", "increment"}}}};
}

}  // namespace benchmarks
