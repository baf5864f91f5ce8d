/// Objects whose output depends on time.
#pragma once

#include "host/object/VConnectable.hpp"
#include "host/pointers/threads.hpp"
#include "host/values/Range.hpp"
#include "host/values/VCreationPreferences.hpp"
#include "host/values/VTime.hpp"

namespace Orlo {

/// Gives an object the parameters of its time: a `VTime` and a factor.
class QUARTZ_API TimeDependent : public virtual VConnectable {
public:
    /// `preferences` says where the time is kept: the word "local" means with
    /// the object. `initial` is the start value of the time parameter.
    TimeDependent(PreferencesPtr const& preferences, VTime const& initial, char const* timeName,
                  char const* scaleName);
    ~TimeDependent() override;

    /// The time in the pool: `range(time * timescale)`, the default if the time
    /// cannot be read. [updater]
    double getTime(PoolPtr const& pool, double defaultTime, Range const& range) const;

private:
    SlotPtr timeSlot_;
    SlotPtr scaleSlot_;
};

}  // namespace Orlo
