#include "host/values/VValueBase.hpp"

namespace Orlo {

VValueBase::VValueBase() = default;
VValueBase::~VValueBase() = default;

ValuePtr VValueBase::whole() const {
    return nullptr;
}

void VValueBase::setSource(WeakPtr<VManagedObject, VManagedObjectBase> const&) {}

StrongPtr<Nucleo::InterfaceBase, Nucleo::InterfaceBase> VValueBase::getInterface() const {
    return nullptr;
}

void VValueBase::setContainerValue(Weak const&) {}

ValuePtr VValueBase::component(std::string const& member) const {
    return member.empty() ? ValuePtr(const_cast<VValueBase*>(this)) : ValuePtr();
}

}  // namespace Orlo
