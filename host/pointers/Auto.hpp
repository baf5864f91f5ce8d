/// Counted objects of static storage.
#pragma once

#include <utility>

namespace Nucleo {

/// An `X` that holds one strong reference on itself, so that the count of a
/// static object never falls to zero and no pointer deletes it.
///
/// It takes nothing back: the object ends by its destructor, which marks it as
/// dead for every pointer.
template <class X>
class Auto : public X {
public:
    template <class... Args>
    explicit Auto(Args&&... args) : X(std::forward<Args>(args)...) {
        this->holdSelf();
    }
};

}  // namespace Nucleo
