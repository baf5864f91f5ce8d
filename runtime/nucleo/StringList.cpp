#include "host/pointers/StringList.hpp"

namespace Nucleo {

StringList::~StringList() = default;

}  // namespace Nucleo
