#include "host/values/VParameter.hpp"

#include <atomic>

#include "host/object/VSlotContainer.hpp"

namespace Orlo {

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
      default_(defaultValue),
      own_(defaultValue ? defaultValue->copy() : ValuePtr()),
      preferences_(preferences) {}

VParameter::~VParameter() {
    for (PoolPtr const& pool : shadows())
        pool->eraseVariable(fullName_);
}

void VParameter::touch() {
    ValueNotifierList::touch();
    if (own_)
        own_->ageable()->setAge(Nucleo::Ageable::now());
}

void VParameter::setCreator(VSlotContainer* owner) {
    if (owner != nullptr)
        fullName_ = std::to_string(owner->number()) + "." + shortName_;
}

ValuePtr VParameter::DefaultValue() const {
    return default_;
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
