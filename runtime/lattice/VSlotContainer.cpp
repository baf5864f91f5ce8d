#include "host/object/VSlotContainer.hpp"

#include <algorithm>
#include <atomic>
#include <mutex>

#include "runtime/lattice/Connections.hpp"

namespace Orlo {

struct VSlotContainer::State {
    struct Finished {
        WeakPtr<ValuePool, ValuePool> pool;
        Nucleo::Ageable::Stamp began;
    };

    std::uint64_t number;
    std::vector<SlotPtr> slots;
    mutable std::mutex mutex;  ///< guards `finished`
    std::vector<Finished> finished;

    /// The entry of a pool, or none.
    Finished const* find(PoolPtr const& pool) const {
        auto const found =
            std::ranges::find_if(finished, [&](Finished const& each) { return each.pool == pool; });
        return found != finished.end() ? &*found : nullptr;
    }
};

VConnectionValidatorList::~VConnectionValidatorList() = default;
ValueCacheable::~ValueCacheable() = default;

VSlotContainer::VSlotContainer() : state_(std::make_unique<State>()) {
    static std::atomic<std::uint64_t> count{0};
    state_->number = ++count;
}

VSlotContainer::~VSlotContainer() {
    for (SlotPtr const& consumer : Connections::instance().consumers(controlBlock()))
        consumer->disconnectFrom(*this);
}

std::vector<SlotPtr> const& VSlotContainer::slots() const noexcept {
    return state_->slots;
}

SlotPtr VSlotContainer::slot(std::string const& name) const {
    auto const found = std::ranges::find_if(
        state_->slots, [&](SlotPtr const& each) { return each->name() == name; });
    return found != state_->slots.end() ? *found : SlotPtr();
}

void VSlotContainer::addSlot(SlotPtr const& slot) {
    for (SlotPtr& each : state_->slots)
        if (each->name() == slot->name()) {
            each = slot;
            return;
        }
    state_->slots.push_back(slot);
}

Nucleo::Ageable::Stamp VSlotContainer::age(PoolPtr const& pool) const {
    Nucleo::Ageable::Stamp latest = 0;
    for (SlotPtr const& slot : state_->slots)
        if (slot->isInput())
            latest = std::max(latest, slot->age(pool));
    return latest;
}

bool VSlotContainer::hasChanged(SlotPtr const& slot, PoolPtr const& pool) const {
    std::scoped_lock const lock(state_->mutex);
    auto const* const last = state_->find(pool);
    return last == nullptr || slot->age(pool) > last->began;
}

bool VSlotContainer::anyChanged(PoolPtr const& pool) const {
    std::scoped_lock const lock(state_->mutex);
    auto const* const last = state_->find(pool);
    return last == nullptr || age(pool) > last->began;
}

void VSlotContainer::updateFinished(PoolPtr const& pool, Nucleo::Ageable::Stamp began) {
    std::scoped_lock const lock(state_->mutex);
    std::erase_if(state_->finished,
                  [&](State::Finished const& each) { return !each.pool || each.pool == pool; });
    state_->finished.push_back({pool, began});
}

std::uint64_t VSlotContainer::number() const noexcept {
    return state_->number;
}

}  // namespace Orlo
