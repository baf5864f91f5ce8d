#include "host/creators/VInitialization.hpp"

#include "host/creators/interface_token.hpp"
#include "host/values/Vprintf.hpp"
#include "runtime/lattice/PluginReports.hpp"

namespace Orlo {

VInitialization::VInitialization() = default;

VInitialization::VInitialization(int fixedAnswer) : answer_(fixedAnswer), fixed_(true) {}

int VInitialization::IsCompatible(char const* token) {
    asked_ = token;
    ++questions_;
    if (fixed_)
        return answer_;
    bool const same = token != nullptr && std::string(token) == InterfaceToken;
    return same ? Compatible : Incompatible;
}

void VInitialization::initPlugin(InitPluginReason reason, char const* moduleName,
                                 char const* token) {
    Vprintf(100, "VInitialization::initPlugin(%d,%s,%s)\n", static_cast<int>(reason), moduleName,
            token);
    noteReport(reason, moduleName, token);
}

}  // namespace Orlo
