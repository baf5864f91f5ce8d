/// Slots: where an object and a parameter meet.
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <typeinfo>

#include "host/pointers/threads.hpp"
#include "host/values/VParameter.hpp"

namespace Orlo {

/// A place of an object that a parameter stands in.
///
/// A slot has a parameter of its own. A connection puts the parameter of
/// another object's output in its place, so that reading the slot reads the
/// provider; taking the connection away puts the own parameter back.
///
/// Owner: counted, held by its container. Threads: connecting is [host], the
/// rest [any]; a provider may die on one thread while another one reads the slot.
class LATTICE_API VSlot : public virtual VManagedObjectBase {
public:
    using Ptr = StrongPtr<VSlot, VManagedObjectBase>;

    VSlot(std::string const& name, int expertLevel, ParameterPtr const& parameter, bool input);
    ~VSlot() override;

    std::string const& name() const noexcept { return slotName_; }
    /// 0 for everybody; higher numbers for ever more experienced users.
    int expertLevel() const noexcept { return level_; }
    bool isInput() const noexcept { return input_; }

    /// The parameter in force: the provider's if connected, else the own one. The
    /// result holds it, whatever becomes of the connection.
    ParameterPtr parameter() const { return isConnected() ? connection().parameter : own_; }
    ParameterPtr const& ownParameter() const noexcept { return own_; }
    /// Whether another object's parameter stands here.
    bool isConnected() const noexcept { return connected_; }
    /// The object that provides the parameter in force, if connected.
    WeakPtr<VManagedObjectBase, VManagedObjectBase> provider() const {
        return isConnected() ? connection().provider
                             : WeakPtr<VManagedObjectBase, VManagedObjectBase>();
    }

    void connect(ParameterPtr const& parameter,
                 WeakPtr<VManagedObjectBase, VManagedObjectBase> const& provider);
    void disconnect();
    /// The same, if it is this one that provides.
    void disconnectFrom(VManagedObjectBase const& provider);

    /// When the slot's value in the pool, or its connection, last changed.
    Nucleo::Ageable::Stamp age(PoolPtr const& pool) const;

private:
    /// What stands in the slot, and who provides it.
    struct Connection {
        ParameterPtr parameter;
        WeakPtr<VManagedObjectBase, VManagedObjectBase> provider;
    };

    Connection connection() const;
    void removeConnection(Nucleo::ControlBlock<VManagedObjectBase> const* provider);

    std::string slotName_;
    int level_;
    bool input_;
    ParameterPtr own_;
    mutable std::mutex mutex_;  ///< guards `current_`
    Connection current_;
    std::atomic<bool> connected_{false};
    Nucleo::Ageable connectionAge_;  ///< when the connection last changed
};

using SlotPtr = VSlot::Ptr;

/// How slots reach their container.
class LATTICE_API VSlotGlobals {
public:
    /// The slots of an object. Null for null.
    static VSlotContainer* containerOf(VObject* object);

    /// Adds a parameter to a container and gives the slot that it stands in;
    /// without a container, a slot that belongs to nobody. `input` is false for
    /// what the object provides. A second parameter of the same name takes the
    /// place of the first. [host]
    static SlotPtr addParameter(VSlotContainer* container, std::string const& name, int expertLevel,
                                ParameterPtr const& parameter, bool input);

    /// Reports, on standard error, a slot of the given type that was made
    /// without an object. [any]
    static void assertionFail(VSlotContainer* container, std::string const& name,
                              std::type_info const& type);
};

}  // namespace Orlo
