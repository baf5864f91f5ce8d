/// The objects of a plug-in, handled as the host does, and closer.
#pragma once

#include <string>
#include <vector>

#include "host/object/Tincture.hpp"
#include "workbench/session/objects.hpp"
#include "workbench/session/parameters.hpp"

namespace tests {

/// A parameter and the text it is set to.
struct Setting {
    std::string name;
    std::string text;
};

/// A new value pool.
Orlo::PoolPtr makePool(std::string const& contextName = {});

using workbench::create;
using workbench::mapOf;
using workbench::update;

/// Sets a parameter by text, as a host does.
inline void set(Orlo::VObject& object, std::string const& name, std::string const& text,
                Orlo::PoolPtr const& pool = {}) {
    workbench::setParameter(object, name, text, pool);
}

/// Calls the object's `update` itself, whether one is due or not.
bool forceUpdate(Orlo::VObject& object, Orlo::PoolPtr const& pool);

/// The object as a colour-map object. Throws `std::bad_cast` if it is none.
Orlo::Tincture& tincture(Orlo::VObject& object);

/// The slots that users set, in their order.
std::vector<Orlo::SlotPtr> inputs(Orlo::VObject const& object);

}  // namespace tests
