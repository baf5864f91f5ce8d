#include "tests/support/objects.hpp"

namespace tests {

using namespace Orlo;

PoolPtr makePool(std::string const& contextName) {
    return new ValuePool(contextName);
}

bool forceUpdate(VObject& object, PoolPtr const& pool) {
    VRequest request(pool);
    return object.update(request, 0.0);
}

Tincture& tincture(VObject& object) {
    return dynamic_cast<Tincture&>(object);
}

std::vector<SlotPtr> inputs(VObject const& object) {
    std::vector<SlotPtr> found;
    for (SlotPtr const& slot : object.slots())
        if (slot->isInput())
            found.push_back(slot);
    return found;
}

}  // namespace tests
