#include "runtime/lattice/CreatorRegistry.hpp"

namespace Orlo {

CreatorRegistry& creatorRegistry() {
    static auto* const instance = new CreatorRegistry;
    return *instance;
}

}  // namespace Orlo
