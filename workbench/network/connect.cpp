#include "workbench/network/connect.hpp"

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/nodes/Node.hpp"
#include "workbench/session/parameters.hpp"
#include "workbench/session/typeNames.hpp"

namespace workbench {

namespace {

using Orlo::SlotPtr;
using Orlo::VObject;

std::string typeOf(SlotPtr const& slot) {
    Orlo::ValuePtr const value = slot->ownParameter()->DefaultValue();
    return value ? typeName(value->type()) : "of no type";
}

SlotPtr findInput(VObject& object, std::string const& name) {
    SlotPtr const present = object.slot(name);
    SlotPtr const input = present ? present : addInput(object, name);
    if (input && input->isInput())
        return input;
    if (input)
        throw CallError(inQuotes(name) + " of " + inQuotes(object.Name()) +
                        " is an output, no input");
    throw CallError(inQuotes(object.Name()) + " has no input " + inQuotes(name) +
                    suggestion(name, parameterNames(object)));
}

/// The named parameter, or the first output that fits the input.
SlotPtr findOutput(VObject const& consumer, SlotPtr const& input, VObject const& provider,
                   std::string const& name) {
    std::string types;
    SlotPtr fitting;
    auto const consider = [&](SlotPtr const& slot) {
        types += (types.empty() ? "" : ", ") + typeOf(slot);
        if (!fitting && consumer.allowParameterReplacement(input, slot->parameter()))
            fitting = slot;
    };
    if (SlotPtr const named = provider.slot(name); named)
        consider(named);
    else if (!name.empty())
        throw CallError(inQuotes(provider.Name()) + " has no parameter " + inQuotes(name) +
                        suggestion(name, parameterNames(provider)));
    else
        provider.iterateOutputs(consider);
    if (types.empty())
        throw CallError(inQuotes(provider.Name()) +
                        " provides nothing by itself; name one of its " + "parameters, as " +
                        provider.Name() + ".PARAMETER");
    if (!fitting)
        throw CallError("the types do not fit: " + inQuotes(input->name()) + " of " +
                        inQuotes(consumer.Name()) + " takes " + typeOf(input) + ", " +
                        inQuotes(provider.Name()) + " provides " + types);
    return fitting;
}

}  // namespace

void connect(VObject& consumer, std::string const& input, VObject& provider,
             std::string const& parameter, Dependencies& dependencies) {
    if (dependencies.dependsOn(provider, consumer))
        throw CallError("this would close a cycle: " + inQuotes(provider.Name()) +
                        " itself depends on " + inQuotes(consumer.Name()));
    SlotPtr const slot = findInput(consumer, input);
    SlotPtr const output = findOutput(consumer, slot, provider, parameter);
    if (!consumer.connectSlots(slot, provider, output))
        throw CallError(inQuotes(consumer.Name()) + " does not take this connection");
    dependencies.read(consumer);
}

}  // namespace workbench
