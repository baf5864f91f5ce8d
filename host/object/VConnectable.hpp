/// Connections between objects.
#pragma once

#include <functional>
#include <typeinfo>
#include <vector>

#include "host/object/VSlotContainer.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// The slots that a set-up concerns.
using VSlotSet = std::vector<SlotPtr>;

/// A container whose slots can be connected.
///
/// Errors: a connection that is not possible, be it for want of a slot, is refused
/// with false and changes nothing.
class LATTICE_API VConnectable : public VSlotContainer {
public:
    ~VConnectable() override;

    /// Makes the object ready once its network stands. [host]
    virtual void setup(VSlotSet const& slots);
    /// Whether the parameter may take the place of the slot's own: an input,
    /// and the types agree. [host]
    virtual bool allowParameterReplacement(SlotPtr const& slot,
                                           ParameterPtr const& replacement) const;
    /// Connects an input of this object to an output of another. [host]
    virtual bool connectSlots(SlotPtr const& input, VConnectable& provider, SlotPtr const& output);
    /// Whether requests pass an input by. [host]
    virtual bool ignoreInput(SlotPtr const& slot) const;
    /// Whether the object can stand for the type, and what stands for it.
    /// [host]
    virtual bool implements(std::type_info const& type) const;
    virtual StrongPtr<VManagedObjectBase, VManagedObjectBase> getImplementation(
        std::type_info const& type);
    /// Visits the outputs in their order. [host]
    virtual void iterateOutputs(std::function<void(SlotPtr const&)> const& visit) const;
    /// A connection of the slot was made through a filter. [host]
    virtual void CreatedFilteredConnection(SlotPtr const& slot);
    /// The connections of the object have changed. [host]
    virtual void adjustConnections();
};

}  // namespace Orlo
