#include "runtime/lattice/Connections.hpp"

namespace Orlo {

Connections& Connections::instance() {
    static auto* const connections = new Connections;
    return *connections;
}

void Connections::add(Provider const* provider, VSlot* consumer) {
    std::scoped_lock const lock(mutex_);
    all_.try_emplace({provider, consumer}, consumer);
}

void Connections::remove(Provider const* provider, VSlot const* consumer) {
    std::scoped_lock const lock(mutex_);
    all_.erase({provider, consumer});
}

std::vector<SlotPtr> Connections::consumers(Provider const* provider) {
    std::scoped_lock const lock(mutex_);
    std::vector<SlotPtr> slots;
    for (auto each = all_.lower_bound({provider, nullptr});
         each != all_.end() && each->first.first == provider; ++each)
        if (SlotPtr const held(each->second); held)
            slots.push_back(held);
    return slots;
}

}  // namespace Orlo
