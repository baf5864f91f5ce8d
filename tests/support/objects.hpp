/// The objects of a plug-in as a host handles them: made by key, set by text,
/// updated on request, looked up.
#pragma once

#include <string>
#include <vector>

#include "host/object/Tincture.hpp"

namespace tests {

/// A parameter and the text it is set to.
struct Setting {
    std::string name;
    std::string text;
};

/// A new value pool.
Orlo::PoolPtr makePool(std::string const& contextName = {});

/// Makes an object by its catalogue key. Throws `std::invalid_argument` if
/// nobody provides the key.
Orlo::ObjectPtr create(std::string const& key, std::string const& name = {},
                       Orlo::PreferencesPtr const& preferences = {});

/// Sets a parameter by text as a host does: the global time advances, then the
/// parameter's own value, or with a pool the value there, takes the text.
/// Throws `std::invalid_argument` for a parameter or a text that is none.
void set(Orlo::VObject& object, std::string const& name, std::string const& text,
         Orlo::PoolPtr const& pool = {});

/// Brings an object up to date in the pool through a request and gives the map
/// that then stands in its output; empty if there is none.
Orlo::ColormapPtr update(Orlo::VObject& object, Orlo::PoolPtr const& pool);

/// Calls the object's `update` itself, whether one is due or not.
bool forceUpdate(Orlo::VObject& object, Orlo::PoolPtr const& pool);

/// The map that stands in the output of a colour-map object.
Orlo::ColormapPtr mapOf(Orlo::VObject& object, Orlo::PoolPtr const& pool);

/// The object as a colour-map object. Throws `std::bad_cast` if it is none.
Orlo::Tincture& tincture(Orlo::VObject& object);

/// The slots that users set, in their order.
std::vector<Orlo::SlotPtr> inputs(Orlo::VObject const& object);

}  // namespace tests
