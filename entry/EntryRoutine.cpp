#include "entry/EntryRoutine.hpp"

#include "host/creators/VInitialization.hpp"
#include "host/creators/interface_token.hpp"

namespace prism {

namespace {

constexpr char ModuleName[] = TELM_MODULE;

void tell(Orlo::VInitialization::InitPluginReason reason) {
    Orlo::VInitialization::initPlugin(reason, ModuleName, Orlo::InterfaceToken);
}

}  // namespace

int entryRoutine(void*, std::uint32_t reason, void*) {
    switch (reason) {  // the numbers of attach and detach swap between system and host
    case ProcessDetach:
        tell(Orlo::VInitialization::ProcessDetach);
        break;
    case ProcessAttach:
        tell(Orlo::VInitialization::ProcessAttach);
        break;
    case ThreadAttach:
        tell(Orlo::VInitialization::ThreadAttach);
        break;
    case ThreadDetach:
        tell(Orlo::VInitialization::ThreadDetach);
        break;
    default:
        break;
    }
    return 1;
}

}  // namespace prism
