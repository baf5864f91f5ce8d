/// What there is to say about the parameters of an object.
#pragma once

#include <string>
#include <vector>

#include "host/object/VObject.hpp"

namespace workbench {

/// One parameter, as texts.
struct ParameterFacts {
    std::string name;
    std::string type;
    std::string defaultText;  ///< the text of its default value
    int expertLevel;
    std::string min;  ///< advice to the user; empty if there is none
    std::string max;
};

/// The parameters of an object, in their order.
std::vector<ParameterFacts> parametersOf(Orlo::VObject const& object);

}  // namespace workbench
