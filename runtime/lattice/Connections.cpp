#include "runtime/lattice/Connections.hpp"

namespace Orlo {

Connections& connections() {
    static auto* const instance = new Connections;
    return *instance;
}

}  // namespace Orlo
