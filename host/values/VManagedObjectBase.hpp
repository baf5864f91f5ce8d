/// Root of the family of objects.
#pragma once

#include "host/pointers/StrongPtr.hpp"
#include "host/pointers/import.hpp"

namespace Orlo {

using Nucleo::StrongPtr;
using Nucleo::WeakPtr;

/// Brings the counting to objects, slots and creators. It is a virtual base, so
/// that an object with many bases is counted once.
class LATTICE_API VManagedObjectBase : public Nucleo::ReferenceBase<VManagedObjectBase> {
public:
    VManagedObjectBase();
    ~VManagedObjectBase() override;
};

class VManagedObject;
class VObject;
class VSlotContainer;

using ObjectPtr = StrongPtr<VObject, VManagedObjectBase>;
using WeakObjectPtr = WeakPtr<VObject, VManagedObjectBase>;

}  // namespace Orlo
