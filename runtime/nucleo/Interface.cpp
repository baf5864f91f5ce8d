#include "host/pointers/Interface.hpp"

namespace Nucleo {

InterfaceBase::~InterfaceBase() = default;

}  // namespace Nucleo
