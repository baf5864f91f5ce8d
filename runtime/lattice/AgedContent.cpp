#include "runtime/lattice/AgedContent.hpp"

namespace Orlo {

AgedContent::~AgedContent() = default;

}  // namespace Orlo
