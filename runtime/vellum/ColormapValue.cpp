#include "runtime/vellum/ColormapValue.hpp"

namespace Orlo {

bool VValueTrait<ColormapPtr>::setValueFromText(ColormapPtr&, std::string const&) {
    return false;
}

std::string VValueTrait<ColormapPtr>::Text(ColormapPtr const&) {
    return "A Colormap Object.";
}

ColormapValue::ColormapValue() = default;
ColormapValue::ColormapValue(ColormapPtr const& map) : VValue<ColormapPtr>(map) {}
ColormapValue::~ColormapValue() = default;

ValuePtr ColormapValue::copy() const {
    ColormapPtr map;
    getValue(map);
    return new ColormapValue(map);
}

bool ColormapValue::assign(ValuePtr const& other) {
    WeakPtr<VTypedValueBase<ColormapPtr>, VValueBase> const typed(other);
    ColormapPtr map;
    return typed && typed->getValue(map) && setValue(map);
}

bool ColormapValue::differs(ValuePtr const& other) const {
    WeakPtr<VTypedValueBase<ColormapPtr>, VValueBase> const typed(other);
    ColormapPtr ours, theirs;
    getValue(ours);
    return !typed || !typed->getValue(theirs) || !(theirs == ours);
}

bool ColormapValue::getValue(ColormapPtr& target) const {
    ColormapPtr present;
    {
        std::scoped_lock const lock(mutex_);
        VValue::getValue(present);
    }
    target = present;
    return true;
}

bool ColormapValue::setValue(ColormapPtr const& source) {
    ColormapPtr former;  // may die behind the lock
    std::scoped_lock const lock(mutex_);
    VValue::getValue(former);
    return VValue::setValue(source);
}

Nucleo::Ageable::Stamp ColormapValue::contentAge() const {
    ColormapPtr map;
    getValue(map);
    return map ? map->age() : 0;
}

ParameterPtr makeColormapParameter(std::string const& name) {
    StrongPtr<VValue<ColormapPtr>, VValueBase> const value = new ColormapValue;
    return new VValueParameter<ColormapPtr>(value, name);
}

}  // namespace Orlo
