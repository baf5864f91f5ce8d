#include "host/values/VSlot.hpp"

#include <algorithm>
#include <cstdio>

#include "host/object/VObject.hpp"
#include "host/pointers/Typename.hpp"
#include "runtime/lattice/Connections.hpp"

namespace Orlo {

VSlot::VSlot(std::string const& name, int expertLevel, ParameterPtr const& parameter, bool input)
    : slotName_(name), level_(expertLevel), input_(input), own_(parameter), current_(parameter) {}

VSlot::~VSlot() {
    disconnect();
}

void VSlot::connect(ParameterPtr const& parameter,
                    WeakPtr<VManagedObjectBase, VManagedObjectBase> const& provider) {
    std::scoped_lock const lock(connections().mutex);
    current_ = parameter;
    source_ = provider;
    connected_.touch();
    connections().slots.insert(this);
}

void VSlot::disconnect() {
    std::scoped_lock const lock(connections().mutex);
    if (connections().slots.erase(this) == 0)
        return;
    current_ = own_;
    source_ = nullptr;
    connected_.touch();
}

Nucleo::Ageable::Stamp VSlot::age(PoolPtr const& pool) const {
    ValuePtr const value = valueInPool(*current_, pool, false);
    Nucleo::Ageable const* const stamp =
        value ? static_cast<VValueBase const&>(*value).ageable() : nullptr;
    return std::max(connected_.age(), stamp != nullptr ? stamp->age() : 0);
}

VSlotContainer* VSlotGlobals::containerOf(VObject* object) {
    return object;
}

SlotPtr VSlotGlobals::addParameter(VSlotContainer* container, std::string const& name,
                                   int expertLevel, ParameterPtr const& parameter, bool input) {
    SlotPtr const slot = new VSlot(name, expertLevel, parameter, input);
    if (container != nullptr)
        container->addSlot(slot);
    return slot;
}

void VSlotGlobals::assertionFail(VSlotContainer*, std::string const& name,
                                 std::type_info const& type) {
    std::fprintf(stderr, "slot '%s' of type %s is made without an object\n", name.c_str(),
                 Nucleo::Typename(type).c_str());
}

}  // namespace Orlo
