#include "host/pointers/Functor.hpp"

namespace Nucleo {

Functor::~Functor() = default;

}  // namespace Nucleo
