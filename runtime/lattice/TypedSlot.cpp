#include "host/values/TypedSlot.hpp"

#include "runtime/lattice/NamedCreators.hpp"

namespace Orlo {

TypedSlotCreator::TypedSlotCreator() = default;
TypedSlotCreator::~TypedSlotCreator() = default;

std::atomic<unsigned> TypedSlotCreator::InternalTypeCreatorAccessory{0};

void TypedSlotCreator::registerTypedSlotCreator(std::type_info const&, Weak const& creator,
                                                std::string const& typeName) {
    NamedCreators<TypedSlotCreator>::instance().enter(typeName, creator);
}

void TypedSlotCreator::unregisterTypedSlotCreator(std::type_info const&, Weak const& creator,
                                                  std::string const&) {
    NamedCreators<TypedSlotCreator>::instance().remove(creator);
}

}  // namespace Orlo
