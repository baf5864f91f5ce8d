/// All slots that stand connected.
#pragma once

#include <mutex>
#include <set>

#include "host/values/VSlot.hpp"

namespace Orlo {

/// The connected slots of the process, so that a provider which goes can be
/// taken out of them. Never destroyed, as objects may die after this library's
/// statics. [any]
struct Connections {
    std::mutex mutex;
    std::set<VSlot*> slots;
};

Connections& connections();

}  // namespace Orlo
