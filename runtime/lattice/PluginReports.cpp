#include "runtime/lattice/PluginReports.hpp"

#include <mutex>
#include <utility>

#include "runtime/lattice/Catalogue.hpp"

namespace Orlo {

namespace {

struct Reports {
    std::mutex mutex;
    std::vector<PluginReport> all;
};

Reports& reports() {
    static auto* const instance = new Reports;
    return *instance;
}

/// Reports of threads that nobody takes must not pile up.
constexpr std::size_t MaxReports = 10000;

}  // namespace

void noteReport(VInitialization::InitPluginReason reason, char const* moduleName,
                char const* token) {
    std::size_t const standing = catalogue().size();
    std::scoped_lock const lock(reports().mutex);
    if (reports().all.size() < MaxReports)
        reports().all.push_back({reason, moduleName, token, standing});
}

std::vector<PluginReport> takePluginReports() {
    std::scoped_lock const lock(reports().mutex);
    return std::exchange(reports().all, {});
}

}  // namespace Orlo
