#include "host/values/VSlot.hpp"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "host/object/VObject.hpp"
#include "host/pointers/Typename.hpp"
#include "runtime/lattice/AgedContent.hpp"
#include "runtime/lattice/Connections.hpp"

namespace Orlo {

VSlot::VSlot(std::string const& name, int expertLevel, ParameterPtr const& parameter, bool input)
    : slotName_(name), level_(expertLevel), input_(input), own_(parameter) {}

VSlot::~VSlot() {
    disconnect();
}

VSlot::Connection VSlot::connection() const {
    std::scoped_lock const lock(mutex_);
    return connected_ ? current_ : Connection{own_, nullptr};
}

void VSlot::connect(ParameterPtr const& parameter,
                    WeakPtr<VManagedObjectBase, VManagedObjectBase> const& provider) {
    disconnect();
    {
        std::scoped_lock const lock(mutex_);
        current_ = {parameter, provider};
        connected_ = true;
    }
    Connections::instance().add(provider.controlBlock(), this);
    connectionAge_.touch();
}

void VSlot::disconnect() {
    removeConnection(nullptr);
}

void VSlot::disconnectFrom(VManagedObjectBase const& provider) {
    removeConnection(provider.controlBlock());
}

/// Takes the connection away; if a provider is given, only one to that.
void VSlot::removeConnection(Nucleo::ControlBlock<VManagedObjectBase> const* provider) {
    Connection former;  // dies behind the lock
    {
        std::scoped_lock const lock(mutex_);
        auto const* const present = current_.provider.controlBlock();
        if (!connected_ || (provider != nullptr && provider != present))
            return;
        former = std::exchange(current_, {});
        connected_ = false;
    }
    Connections::instance().remove(former.provider.controlBlock(), this);
    connectionAge_.touch();
}

Nucleo::Ageable::Stamp VSlot::age(PoolPtr const& pool) const {
    Nucleo::Ageable::Stamp const connectionAge = connectionAge_.age();
    ValuePtr const held = valueInPool(*parameter(), pool, false);
    if (!held)
        return connectionAge;
    VValueBase const& value = *held;
    auto const* const content = dynamic_cast<AgedContent const*>(&value);
    return std::max({connectionAge, value.ageable()->age(),
                     content != nullptr ? content->contentAge() : Nucleo::Ageable::Stamp{0}});
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
