/// Values that hold what changes by itself.
#pragma once

#include "host/pointers/Ageable.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// Is a base, beside `VValueBase`, of values that hold an object with an age of
/// its own. `VSlot::age` asks for it beside the value's own stamp, and is told a
/// stamp and not a place, since the object may go at any time.
class LATTICE_API AgedContent {
public:
    virtual ~AgedContent();

    /// When the content last changed; 0 if there is none. [any]
    virtual Nucleo::Ageable::Stamp contentAge() const = 0;
};

}  // namespace Orlo
