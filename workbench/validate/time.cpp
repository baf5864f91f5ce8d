/// Time: over and over.
#include "runtime/lattice/PluginReports.hpp"
#include "workbench/platform/ownProcess.hpp"
#include "workbench/platform/sanitizers.hpp"
#include "workbench/validate/Host.hpp"

namespace workbench::validate {

namespace {

using namespace Orlo;

#if PRISM_ADDRESS_SANITIZER || PRISM_THREAD_SANITIZER
// The sanitizer enters an exit function of its own beside each of ours and never takes
// it out again, so that the list of exit functions grows.
constexpr int FewCycles = 100, SomeCycles = 200, ManyCycles = 1000;
constexpr std::size_t GrowthOfCycle = 4096;
#else
constexpr int FewCycles = 1000, SomeCycles = 5000, ManyCycles = 100'000;
constexpr std::size_t GrowthOfCycle = 0;
#endif
constexpr int Slowness = 10;  // of the other system's loader
constexpr int WarmUp = 10;
constexpr std::size_t MostGrowth = 1024;  // bytes in all

/// One life of the plug-in: it is loaded, every entry makes an object and a map, and it
/// is unloaded.
void liveOnce(Trial const& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) { update(*create(entry), newPool()); });
    takePluginReports();  // which the host would keep for somebody who asks
}

void loadCycles(Trial& trial) {
    int const cycles =
        trial.times(FewCycles, SomeCycles, ManyCycles) / (loaderIsSlow() ? Slowness : 1);
    for (int i = 0; i < WarmUp; ++i)
        liveOnce(trial);
    std::size_t const bytes = heapBytes();
    unsigned const index = nextThreadIndex();
    std::size_t const handles = openHandles();
    for (int i = 0; i < cycles; ++i)
        liveOnce(trial);
    std::string const often = " more after " + std::to_string(cycles) + " times";
    std::size_t const most = bytes + MostGrowth + GrowthOfCycle * static_cast<std::size_t>(cycles);
    std::size_t const now = heapBytes();
    require(now <= most, std::to_string(now - bytes) + " bytes" + often);
    require(nextThreadIndex() == index,
            std::to_string(nextThreadIndex() - index) + " thread-local indexes" + often);
    require(openHandles() <= handles,
            std::to_string(openHandles() - handles) + " open files" + often);
    trial.told = std::to_string(cycles) + " cycles, " +
                 std::to_string(static_cast<long long>(now) - static_cast<long long>(bytes)) +
                 " bytes more";
}

}  // namespace

std::vector<Test> timeTests() {
    return {
        {"time/load-cycles",
         "Loaded, used and unloaded over and over, it leaves no byte, no thread-local index and no "
         "open file behind.",
         {"memory/updates", "file/leaves-nothing"},
         loadCycles,
         600},
    };
}

}  // namespace workbench::validate
