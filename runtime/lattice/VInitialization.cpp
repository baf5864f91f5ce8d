#include "host/creators/VInitialization.hpp"

#include <mutex>
#include <utility>

#include "host/creators/interface_token.hpp"
#include "host/values/Vprintf.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "runtime/lattice/PluginReports.hpp"

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
constexpr std::size_t MostReports = 10000;

}  // namespace

VInitialization::VInitialization() = default;

VInitialization::VInitialization(int fixedAnswer) : answer_(fixedAnswer), fixed_(true) {}

int VInitialization::IsCompatible(char const* token) {
    asked_ = token;
    if (fixed_)
        return answer_;
    bool const same = token != nullptr && std::string(token) == InterfaceToken;
    return same ? Compatible : Incompatible;
}

void VInitialization::initPlugin(InitPluginReason reason, char const* moduleName,
                                 char const* token) {
    Vprintf(100, "VInitialization::initPlugin(%d,%s,%s)\n", static_cast<int>(reason), moduleName,
            token);
    std::size_t const standing = catalogue().size();
    std::scoped_lock const lock(reports().mutex);
    if (reports().all.size() < MostReports)
        reports().all.push_back({reason, moduleName, token, standing});
}

std::vector<PluginReport> takePluginReports() {
    std::scoped_lock const lock(reports().mutex);
    return std::exchange(reports().all, {});
}

}  // namespace Orlo
