/// The family of small shared objects known by their class alone.
#pragma once

#include "host/pointers/ReferenceBase.hpp"
#include "host/pointers/import.hpp"

namespace Nucleo {

/// Root of the family.
class NUCLEO_API InterfaceBase : public ReferenceBase<InterfaceBase> {
public:
    ~InterfaceBase() override;
};

/// Base of the class `X` of the family.
template <class X>
class Interface : public InterfaceBase {};

}  // namespace Nucleo
