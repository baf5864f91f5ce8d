/// Objects that the host manages by domain.
#pragma once

#include <typeinfo>

#include "host/pointers/Intercube.hpp"
#include "host/pointers/MutableName.hpp"
#include "host/pointers/threads.hpp"
#include "host/values/VManagedObjectBase.hpp"

namespace Orlo {

/// A named object that can serve as a context.
class LATTICE_API VManagedObject : public virtual VManagedObjectBase,
                                   public Nucleo::Intercube,
                                   public Nucleo::MutableName {
public:
    explicit VManagedObject(std::string const& name = {});
    ~VManagedObject() override;

    /// The object that this one is a part of: none. [any]
    virtual StrongPtr<VManagedObject, VManagedObjectBase> owner() const;
    /// The domain that the object belongs to. [any]
    virtual std::type_info const& domain() const = 0;
};

/// Membership of the domain of all `D`.
template <class D>
class VManagedDomainObject : public VManagedObject {
public:
    using VManagedObject::VManagedObject;
    std::type_info const& domain() const override { return typeid(D); }
};

}  // namespace Orlo
