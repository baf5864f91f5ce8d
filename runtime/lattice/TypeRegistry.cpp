#include "runtime/lattice/TypeRegistry.hpp"

#include "runtime/lattice/NamedCreators.hpp"

namespace Orlo {

StrongPtr<VValueCreator, VValueCreator> findValueCreator(std::string const& typeName) {
    return NamedCreators<VValueCreator>::instance().find(typeName);
}

StrongPtr<TypedSlotCreator, TypedSlotCreator> findSlotCreator(std::string const& typeName) {
    return NamedCreators<TypedSlotCreator>::instance().find(typeName);
}

std::size_t typeCreatorCount() {
    return NamedCreators<VValueCreator>::instance().size() +
           NamedCreators<TypedSlotCreator>::instance().size();
}

}  // namespace Orlo
