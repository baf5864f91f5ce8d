/// Ranges, times, and objects that depend on them.
#include "host/object/TimeDependent.hpp"
#include "host/values/TypedSlot.hpp"

namespace Orlo {

Range::~Range() = default;

double Range::operator()(double t) const {
    return (maximum - minimum) * t + minimum;
}

VTime::VTime() = default;
VTime::VTime(double time, double first, double last) : value(time), minimum(first), maximum(last) {}
VTime::VTime(double time, double first, double last, double stepWidth, std::string const& unitText,
             std::string const& formatText, std::string const& remarkText)
    : value(time),
      minimum(first),
      maximum(last),
      step(stepWidth),
      unit(unitText),
      format(formatText),
      remark(remarkText) {}
VTime::~VTime() = default;
VTime::VTime(VTime const&) = default;
VTime& VTime::operator=(VTime const&) = default;

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
