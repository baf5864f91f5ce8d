#include "host/values/VSlot.hpp"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "host/colormap/Colormap.hpp"
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

namespace {

/// The age of what a value holds, where that ages by itself. Only maps do: the type
/// is compared first, since a cast that fails costs more than all else of a request.
Nucleo::Ageable::Stamp contentAge(VValueBase const& value) {
    if (value.type() != typeid(ColormapPtr))
        return 0;
    auto const* const content = dynamic_cast<AgedContent const*>(&value);
    return content != nullptr ? content->contentAge() : 0;
}

Nucleo::Ageable::Stamp valueAge(VValueBase const& value) {
    return std::max(value.ageable()->age(), contentAge(value));
}

/// The age of a parameter's value in a pool. A pool's own is held meanwhile; the
/// parameter's stands as long as the parameter, and counting costs.
Nucleo::Ageable::Stamp parameterAge(VParameter const& parameter, PoolPtr const& pool) {
    if (parameter.keepsLocalValues())
        if (ValuePtr const local = parameter.getLocalValue(pool, "", false))
            return valueAge(*local);
    return parameter.ownValue() ? valueAge(*parameter.ownValue()) : 0;
}

}  // namespace

Nucleo::Ageable::Stamp VSlot::age(PoolPtr const& pool) const {
    Nucleo::Ageable::Stamp const connectionAge = connectionAge_.age();
    return std::max(connectionAge,
                    isConnected() ? parameterAge(*parameter(), pool) : parameterAge(*own_, pool));
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
