#include "host/object/TimeDependent.hpp"

#include "host/values/TypedSlot.hpp"

namespace Orlo {

namespace {

/// Adds an input parameter that users may set.
template <class T>
SlotPtr addInput(VSlotContainer& container, char const* name, T const& initial,
                 PreferencesPtr const& preferences) {
    StrongPtr<VValue<T>, VValueBase> const value = new VValue<T>(initial);
    ParameterPtr const parameter = new VValueParameter<T>(value, name, preferences);
    parameter->setCreator(&container);
    parameter->flags &= ~static_cast<unsigned>(VParameter::Computed);
    return VSlotGlobals::addParameter(&container, name, 0, parameter, true);
}

}  // namespace

TimeDependent::TimeDependent(PreferencesPtr const& preferences, VTime const& initial,
                             char const* timeName, char const* scaleName)
    : timeSlot_(addInput(*this, timeName, initial, preferences)),
      scaleSlot_(addInput(*this, scaleName, 1.0, preferences)) {}

TimeDependent::~TimeDependent() = default;

double TimeDependent::getTime(PoolPtr const& pool, double defaultTime, Range const& range) const {
    VTime time;
    time.value = defaultTime;
    double scale = 1.0;
    readParameter(*timeSlot_->parameter(), pool, time);
    readParameter(*scaleSlot_->parameter(), pool, scale);
    return range(time.value * scale);
}

}  // namespace Orlo
