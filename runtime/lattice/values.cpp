/// Values, pools and parameters without their type.
#include <algorithm>
#include <atomic>

#include "host/values/VParameter.hpp"

namespace Orlo {

VManagedObjectBase::VManagedObjectBase() = default;
VManagedObjectBase::~VManagedObjectBase() = default;

// --- VValueBase

VValueBase::VValueBase() = default;
VValueBase::~VValueBase() = default;

ValuePtr VValueBase::whole() const {
    return nullptr;
}

void VValueBase::setSource(WeakPtr<VManagedObject, VManagedObjectBase> const&) {}

StrongPtr<Nucleo::InterfaceBase, Nucleo::InterfaceBase> VValueBase::getInterface() const {
    return nullptr;
}

void VValueBase::setContainerValue(Weak const&) {}

ValuePtr VValueBase::component(std::string const& member) const {
    return member.empty() ? ValuePtr(const_cast<VValueBase*>(this)) : ValuePtr();
}

// --- ValueMap, ValuePool

ValuePtr ValueMap::getValue(std::string const& name) const {
    auto const found = values_.find(name);
    return found != values_.end() ? found->second : ValuePtr();
}

void ValueMap::setValue(std::string const& name, ValuePtr const& value) {
    values_[name] = value;
}

ValuePool::ValuePool(std::string contextName) : context_(std::move(contextName)) {}
ValuePool::~ValuePool() = default;

ValuePtr ValuePool::createVariable(ValueNotifierList const& parameter, ValuePtr const& value) {
    std::string const& name = dynamic_cast<VParameter const&>(parameter).Name();
    std::scoped_lock const lock(mutex_);
    return variables_.try_emplace(name, value).first->second;
}

ValuePtr ValuePool::retrieveValue(std::string const& parameterName) const {
    std::scoped_lock const lock(mutex_);
    auto const found = variables_.find(parameterName);
    return found != variables_.end() ? found->second : ValuePtr();
}

void ValuePool::eraseVariable(std::string const& parameterName) {
    ValuePtr last;  // dies behind the lock
    std::scoped_lock const lock(mutex_);
    auto const found = variables_.find(parameterName);
    if (found == variables_.end())
        return;
    last = found->second;
    variables_.erase(found);
}

std::size_t ValuePool::size() const {
    std::scoped_lock const lock(mutex_);
    return variables_.size();
}

// --- ValueNotifierList

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

// --- VParameter

namespace {

/// A name for parameters that no object owns.
std::string unboundName(std::string const& name) {
    static std::atomic<unsigned long> count{0};
    return "unbound" + std::to_string(++count) + "." + name;
}

}  // namespace

VParameter::VParameter(ValuePtr const& defaultValue, std::string const& name,
                       PreferencesPtr const& preferences)
    : shortName_(name),
      fullName_(unboundName(name)),
      standard_(defaultValue),
      own_(defaultValue ? defaultValue->copy() : ValuePtr()),
      wishes_(preferences) {}

VParameter::~VParameter() {
    for (PoolPtr const& pool : shadows())
        pool->eraseVariable(fullName_);
}

void VParameter::touch() {
    ValueNotifierList::touch();
    if (own_)
        own_->ageable()->setAge(Nucleo::Ageable::now());
}

ValuePtr VParameter::DefaultValue() const {
    return standard_;
}

ValuePtr VParameter::getLocalValue(PoolPtr const& pool, std::string const& member,
                                   bool create) const {
    if (!pool)
        return nullptr;
    ValuePtr const value = create ? poolVariable(pool) : pool->retrieveValue(fullName_);
    return value ? value->component(member) : ValuePtr();
}

void VParameter::setProperty(std::string const& name, ValuePtr const& value,
                             WeakPtr<ValueNotifier, ValueNotifier> const& notifier,
                             ValueNotifierList const* source,
                             WeakPtr<ValuePool, ValuePool> const& pool) {
    if (!propertyMap_)
        propertyMap_ = std::make_unique<ValueMap>();
    propertyMap_->setValue(name, value);
    notifyValueChange(value, pool, name, notifier, source, nullptr);
}

void VParameter::notifyValueChange(ValuePtr const& value, PoolPtr const& pool,
                                   std::string const& member,
                                   WeakPtr<ValueNotifier, ValueNotifier> const& notifier,
                                   ValueNotifierList const*, VManagedObjectBase const*) {
    for (auto const& listener : listeners())
        if (!(notifier && listener == notifier))
            listener->valueChanged(value, pool, member);
}

}  // namespace Orlo
