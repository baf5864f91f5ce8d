/// Tells the host of the attach and the detach from static objects, and not behind and
/// before all others.
#pragma once

#include "host/creators/VInitialization.hpp"
#include "tests/brokenPlugins/Healthy.hpp"

namespace {

struct Attach {
    Attach() {
        VInitialization::initPlugin(VInitialization::ProcessAttach, TELM_MODULE, InterfaceToken);
    }
};

struct Detach {
    ~Detach() {
        VInitialization::initPlugin(VInitialization::ProcessDetach, TELM_MODULE, InterfaceToken);
    }
};

}  // namespace
