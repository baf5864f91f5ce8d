/// The catalogue of all that can be made.
#pragma once

#include <string>
#include <typeinfo>
#include <vector>

#include "host/creators/VCreatorBase.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// The creators that stand, in the order of their construction. [any]
LATTICE_API std::vector<WeakCreatorPtr> catalogue();

/// The first creator of that full key, such as `Colormaps/Glow`; empty if there
/// is none. [any]
LATTICE_API WeakCreatorPtr findCreator(std::string const& key);

/// The creators that are registered as sources of values of the type, in the
/// order of registration. [any]
LATTICE_API std::vector<WeakInputCreatorPtr> inputCreators(std::type_info const& type);

}  // namespace Orlo
