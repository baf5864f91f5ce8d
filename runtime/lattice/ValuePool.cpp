#include "host/values/VParameter.hpp"

namespace Orlo {

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

}  // namespace Orlo
