#include "host/pointers/Intercube.hpp"

namespace Nucleo {

Intercube::~Intercube() = default;

}  // namespace Nucleo
