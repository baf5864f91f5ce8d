#include "workbench/session/parameters.hpp"

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/session/typeNames.hpp"

namespace workbench {

namespace {

/// The own parameter of the named input, or a `CallError`.
Orlo::ParameterPtr findParameter(Orlo::VObject const& object, std::string const& name) {
    Orlo::SlotPtr const slot = object.slot(name);
    if (slot && slot->isInput())
        return slot->ownParameter();
    if (slot)
        throw CallError("the parameter " + inQuotes(name) + " of " + inQuotes(object.Name()) +
                        " is an output; it cannot be set");
    std::vector<std::string> const names = parameterNames(object);
    std::string const remedy = names.empty() ? "; it has none" : "; it has";
    std::string all;
    for (std::string const& each : names)
        all += (all.empty() ? " " : ", ") + inQuotes(each);
    throw CallError(inQuotes(object.Name()) + " has no parameter " + inQuotes(name) +
                    suggestion(name, names, remedy + all));
}

/// What the text means for the parameter, or a `CallError`.
Orlo::ValuePtr parsed(Orlo::VParameter const& parameter, std::string const& text,
                      Orlo::PoolPtr const& context) {
    Orlo::ValuePtr const value = parameter.copyOfDefault();
    if (value && value->setFromText(text))
        return value;
    Orlo::ValuePtr const present = Orlo::valueInPool(parameter, context, false);
    throw CallError("the text " + inQuotes(text) + " is no value of the parameter " +
                    inQuotes(parameter.localName()) +
                    (present ? " of type " + typeName(present->type()) +
                                   "; a right one is the present " + inQuotes(present->text())
                             : ", which holds no value"));
}

}  // namespace

std::vector<std::string> parameterNames(Orlo::VObject const& object) {
    std::vector<std::string> names;
    for (Orlo::SlotPtr const& slot : object.slots())
        if (slot->isInput())
            names.push_back(slot->name());
    return names;
}

void setParameter(Orlo::VObject& object, std::string const& name, std::string const& text,
                  Orlo::PoolPtr const& context) {
    Orlo::ParameterPtr const parameter = findParameter(object, name);
    Orlo::ValuePtr const value = parsed(*parameter, text, context);
    Nucleo::Ageable::GlobalTime.fetch_add(1);
    if (context) {
        Orlo::ValuePtr const target = Orlo::valueInPool(*parameter, context, true);
        target->assign(value);
        target->ageable()->setAge(Nucleo::Ageable::now());
        parameter->notifyValueChange(target, context, "", nullptr, nullptr, nullptr);
        return;
    }
    parameter->setGlobalValue(value, nullptr);
    parameter->notifyValueChange(parameter->ownValue(), nullptr, "", nullptr, nullptr, nullptr);
}

}  // namespace workbench
