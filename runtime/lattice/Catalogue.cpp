#include "runtime/lattice/Catalogue.hpp"

#include "runtime/lattice/CreatorRegistry.hpp"

namespace Orlo {

std::vector<WeakCreatorPtr> catalogue() {
    std::scoped_lock const lock(creatorRegistry().mutex);
    return creatorRegistry().creators;
}

WeakCreatorPtr findCreator(std::string const& key) {
    std::scoped_lock const lock(creatorRegistry().mutex);
    for (WeakCreatorPtr const& creator : creatorRegistry().creators)
        if (creator->keyname("/") == key)
            return creator;
    return nullptr;
}

std::vector<WeakInputCreatorPtr> inputCreators(std::type_info const& type) {
    std::scoped_lock const lock(creatorRegistry().mutex);
    auto const found = creatorRegistry().inputs.find(type);
    return found != creatorRegistry().inputs.end() ? found->second
                                                   : std::vector<WeakInputCreatorPtr>();
}

}  // namespace Orlo
