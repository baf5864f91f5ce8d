#include "workbench/session/ParameterFacts.hpp"

#include "workbench/session/typeNames.hpp"

namespace workbench {

namespace {

std::string propertyText(Orlo::VParameter const& parameter, std::string const& name) {
    Orlo::ValueMap const* const properties = parameter.properties();
    Orlo::ValuePtr const value = properties != nullptr ? properties->getValue(name) : nullptr;
    return value ? value->text() : std::string();
}

}  // namespace

std::vector<ParameterFacts> parametersOf(Orlo::VObject const& object) {
    std::vector<ParameterFacts> all;
    for (Orlo::SlotPtr const& slot : object.slots()) {
        if (!slot->isInput())
            continue;
        Orlo::VParameter const& parameter = *slot->ownParameter();
        Orlo::ValuePtr const defaultValue = parameter.DefaultValue();
        all.push_back({slot->name(), defaultValue ? typeName(defaultValue->type()) : "",
                       defaultValue ? defaultValue->text() : "", slot->expertLevel(),
                       propertyText(parameter, "min"), propertyText(parameter, "max")});
    }
    return all;
}

}  // namespace workbench
