#include "tests/support/objects.hpp"

#include <stdexcept>

#include "runtime/lattice/Catalogue.hpp"

namespace tests {

using namespace Orlo;

PoolPtr makePool(std::string const& contextName) {
    return new ValuePool(contextName);
}

ObjectPtr create(std::string const& key, std::string const& name,
                 PreferencesPtr const& preferences) {
    WeakCreatorPtr const creator = findCreator(key);
    if (!creator)
        throw std::invalid_argument("no catalogue entry " + key);
    return creator->create(name, Nucleo::Intercube(), preferences);
}

void set(VObject& object, std::string const& name, std::string const& text, PoolPtr const& pool) {
    SlotPtr const slot = object.slot(name);
    if (!slot)
        throw std::invalid_argument("no parameter " + name);
    VParameter& parameter = *slot->ownParameter();
    ValuePtr const value = parameter.copyOfDefault();
    if (!value->setFromText(text))
        throw std::invalid_argument("parameter " + name + " does not read \"" + text + "\"");
    Nucleo::Ageable::GlobalTime.fetch_add(1);
    if (!pool) {
        parameter.setGlobalValue(value, nullptr);
        return;
    }
    ValuePtr const local = parameter.getLocalValue(pool, "", true);
    local->assign(value);
    local->ageable()->setAge(Nucleo::Ageable::now());
}

ColormapPtr update(VObject& object, PoolPtr const& pool) {
    VRequest request(pool);
    object.request(request, 0.0, nullptr, nullptr);
    return mapOf(object, pool);
}

bool forceUpdate(VObject& object, PoolPtr const& pool) {
    VRequest request(pool);
    return object.update(request, 0.0);
}

ColormapPtr mapOf(VObject& object, PoolPtr const& pool) {
    ColormapPtr map;
    readParameter(*tincture(object).output(), pool, map);
    return map;
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
