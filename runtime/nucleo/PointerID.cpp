#include "host/pointers/PointerID.hpp"

namespace Nucleo {

std::uint32_t PointerID = 0;

}  // namespace Nucleo
