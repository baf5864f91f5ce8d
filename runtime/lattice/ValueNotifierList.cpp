#include "host/values/ValueNotifierList.hpp"

namespace Orlo {

ValueNotifier::~ValueNotifier() = default;

ValueNotifierList::ValueNotifierList() = default;
ValueNotifierList::~ValueNotifierList() = default;

void ValueNotifierList::touch() {
    Nucleo::Ageable::GlobalTime.fetch_add(1);
}

void ValueNotifierList::addNotifier(WeakPtr<ValueNotifier, ValueNotifier> const& notifier) {
    std::scoped_lock const lock(mutex_);
    if (notifiers_.size() >= notifiersAtNextSweep_) {
        std::erase_if(notifiers_, [](auto const& each) { return !each.alive(); });
        notifiersAtNextSweep_ = 2 * notifiers_.size() + 8;
    }
    notifiers_.push_back(notifier);
}

void ValueNotifierList::addShadow(PoolPtr const& pool) const {
    std::scoped_lock const lock(mutex_);
    std::erase_if(pools_, [&](auto const& each) { return !each || each == pool; });
    pools_.push_back(pool);
}

void ValueNotifierList::copyShadows(ValueNotifierList const& other) const {
    for (PoolPtr const& pool : other.shadows())
        addShadow(pool);
}

std::vector<PoolPtr> ValueNotifierList::shadows() const {
    std::scoped_lock const lock(mutex_);
    std::vector<PoolPtr> alive;
    for (auto const& pool : pools_)
        if (PoolPtr const held(pool); held)  // held first: it may go on another thread
            alive.push_back(held);
    return alive;
}

std::vector<StrongPtr<ValueNotifier, ValueNotifier>> ValueNotifierList::listeners() const {
    std::scoped_lock const lock(mutex_);
    std::vector<StrongPtr<ValueNotifier, ValueNotifier>> alive;
    for (auto const& notifier : notifiers_)
        if (StrongPtr<ValueNotifier, ValueNotifier> const held(notifier); held)
            alive.push_back(held);
    return alive;
}

}  // namespace Orlo
