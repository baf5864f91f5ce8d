/// Rows of parameters, by the type itself.
#pragma once

#include <typeinfo>
#include <utility>

#include "host/pointers/Typename.hpp"
#include "host/values/VValueTrait.hpp"
#include "tests/prism/MapDescription.hpp"

namespace tests {

/// A parameter of type `T`.
template <class T>
ParameterRow parameter(std::string name, std::string defaultText, int expertLevel = 0,
                       std::vector<Setting> properties = {}) {
    return {std::move(name), Nucleo::Typename(typeid(T)), std::move(defaultText), expertLevel,
            std::move(properties)};
}

}  // namespace tests
