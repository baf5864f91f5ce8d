/// All slots that stand connected.
#pragma once

#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include "host/pointers/threads.hpp"
#include "host/values/VSlot.hpp"

namespace Orlo {

/// The connected slots of the process by their providers, so that a provider
/// which goes is taken out of them, and of no others: a network of a million
/// objects must go as quickly as each of them. [any]
class Connections {
public:
    using Provider = Nucleo::ControlBlock<VManagedObjectBase>;

    /// Never destroyed, as objects may die after this library's statics.
    static Connections& instance();

    void add(Provider const* provider, VSlot* consumer);
    void remove(Provider const* provider, VSlot const* consumer);
    /// The slots that an object provides for, held.
    std::vector<SlotPtr> consumers(Provider const* provider);

private:
    std::mutex mutex_;
    std::map<std::pair<Provider const*, VSlot const*>, WeakPtr<VSlot, VManagedObjectBase>> all_;
};

}  // namespace Orlo
