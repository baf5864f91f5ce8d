#include "entry/EntryRoutine.hpp"

#include <optional>

#include "host/creators/VInitialization.hpp"
#include "host/creators/interface_token.hpp"

namespace prism {

namespace {

constexpr char ModuleName[] = TELM_MODULE;

/// Why the loader calls, as the host counts: the numbers of attach and detach swap.
std::optional<Orlo::VInitialization::InitPluginReason> hostReason(std::uint32_t reason) {
    switch (reason) {
    case ProcessDetach:
        return Orlo::VInitialization::ProcessDetach;
    case ProcessAttach:
        return Orlo::VInitialization::ProcessAttach;
    case ThreadAttach:
        return Orlo::VInitialization::ThreadAttach;
    case ThreadDetach:
        return Orlo::VInitialization::ThreadDetach;
    default:
        return std::nullopt;
    }
}

}  // namespace

int entryRoutine(void*, std::uint32_t reason, void*) {
    if (auto const told = hostReason(reason))
        Orlo::VInitialization::initPlugin(*told, ModuleName, Orlo::InterfaceToken);
    return 1;
}

}  // namespace prism
