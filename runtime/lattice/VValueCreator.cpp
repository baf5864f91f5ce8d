#include "host/values/VValueCreator.hpp"

#include "runtime/lattice/NamedCreators.hpp"

namespace Orlo {

VValueCreator::VValueCreator() = default;

VValueCreator::~VValueCreator() {
    NamedCreators<VValueCreator>::instance().remove(WeakPtr<VValueCreator, VValueCreator>(this));
}

void VValueCreator::registerCreator(WeakPtr<VValueCreator, VValueCreator> const& creator,
                                    std::string const& typeName) {
    NamedCreators<VValueCreator>::instance().enter(typeName, creator);
}

}  // namespace Orlo
