#include "host/object/VManagedObject.hpp"

namespace Orlo {

VManagedObject::VManagedObject(std::string const& name) : MutableName(name) {}
VManagedObject::~VManagedObject() = default;

StrongPtr<VManagedObject, VManagedObjectBase> VManagedObject::owner() const {
    return nullptr;
}

}  // namespace Orlo
