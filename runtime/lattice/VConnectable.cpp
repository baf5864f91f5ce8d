#include "host/object/VConnectable.hpp"

namespace Orlo {

VConnectable::~VConnectable() = default;

void VConnectable::setup(VSlotSet const&) {}

bool VConnectable::allowParameterReplacement(SlotPtr const& slot,
                                             ParameterPtr const& replacement) const {
    if (!slot || !replacement)
        return false;
    ValuePtr const ours = slot->ownParameter()->DefaultValue();
    ValuePtr const theirs = replacement->DefaultValue();
    return slot->isInput() && ours && theirs && ours->type() == theirs->type();
}

bool VConnectable::connectSlots(SlotPtr const& input, VConnectable& provider,
                                SlotPtr const& output) {
    if (!input || !output || !allowParameterReplacement(input, output->parameter()))
        return false;
    input->connect(output->parameter(), WeakPtr<VManagedObjectBase, VManagedObjectBase>(&provider));
    adjustConnections();
    return true;
}

bool VConnectable::ignoreInput(SlotPtr const&) const {
    return false;
}

bool VConnectable::implements(std::type_info const&) const {
    return false;
}

StrongPtr<VManagedObjectBase, VManagedObjectBase> VConnectable::getImplementation(
    std::type_info const&) {
    return nullptr;
}

void VConnectable::iterateOutputs(std::function<void(SlotPtr const&)> const& visit) const {
    for (SlotPtr const& slot : slots())
        if (!slot->isInput())
            visit(slot);
}

void VConnectable::CreatedFilteredConnection(SlotPtr const&) {}

void VConnectable::adjustConnections() {}

}  // namespace Orlo
