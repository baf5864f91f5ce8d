/// What makes values and slots, by the name of their type.
#pragma once

#include <string>
#include <vector>

#include "host/pointers/threads.hpp"
#include "host/values/TypedSlot.hpp"

namespace Orlo {

/// The latest creator of values of the type that is alive, or empty. [any]
LATTICE_API StrongPtr<VValueCreator, VValueCreator> findValueCreator(std::string const& typeName);

/// The latest creator of slots of the type that is alive, or empty. [any]
LATTICE_API StrongPtr<TypedSlotCreator, TypedSlotCreator> findSlotCreator(
    std::string const& typeName);

/// How many creators of both kinds are alive. [any]
LATTICE_API std::size_t typeCreatorCount();

}  // namespace Orlo
