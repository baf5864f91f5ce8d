#include "host/values/VManagedObjectBase.hpp"

namespace Orlo {

VManagedObjectBase::VManagedObjectBase() = default;
VManagedObjectBase::~VManagedObjectBase() = default;

}  // namespace Orlo
