/// What has slots.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/pointers/threads.hpp"
#include "host/values/VSlot.hpp"

namespace Orlo {

/// Mark of containers whose connections can be checked.
class LATTICE_API VConnectionValidatorList {
public:
    virtual ~VConnectionValidatorList();
};

/// Mark of containers whose values can be cached.
class LATTICE_API ValueCacheable {
public:
    virtual ~ValueCacheable();
};

/// The slots of an object, in the order in which they were added.
///
/// Owner: holds its slots. Threads: adding slots is [host]; ages are [any].
class LATTICE_API VSlotContainer : public virtual VManagedObjectBase,
                                   public VConnectionValidatorList,
                                   public ValueCacheable {
public:
    VSlotContainer();
    VSlotContainer(VSlotContainer const&) = delete;
    VSlotContainer& operator=(VSlotContainer const&) = delete;
    /// Takes the outputs of this container out of all connections.
    ~VSlotContainer() override;

    std::vector<SlotPtr> const& slots() const noexcept;
    /// The slot of that name, or empty.
    SlotPtr slot(std::string const& name) const;
    void addSlot(SlotPtr const& slot);

    /// The latest age over the input slots in the pool.
    Nucleo::Ageable::Stamp age(PoolPtr const& pool) const;
    /// Whether the slot's value has changed since this object's last finished
    /// update in the pool; true if there was none. Only updates that `request` or
    /// `unsychronized_update` ran are noted as finished.
    bool hasChanged(SlotPtr const& slot, PoolPtr const& pool) const;

    /// A number that no other container of the process has.
    std::uint64_t number() const noexcept;

protected:
    /// Whether any input has changed since the last finished update.
    bool anyChanged(PoolPtr const& pool) const;
    /// Notes that an update which began at the given time has finished.
    void updateFinished(PoolPtr const& pool, Nucleo::Ageable::Stamp began);

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace Orlo
