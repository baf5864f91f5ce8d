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
        if (pool)
            alive.emplace_back(pool);
    return alive;
}

std::vector<StrongPtr<ValueNotifier, ValueNotifier>> ValueNotifierList::listeners() const {
    std::scoped_lock const lock(mutex_);
    std::vector<StrongPtr<ValueNotifier, ValueNotifier>> alive;
    for (auto const& notifier : notifiers_)
        if (notifier)
            alive.emplace_back(notifier);
    return alive;
}

}  // namespace Orlo
