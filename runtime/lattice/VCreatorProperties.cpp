#include "host/creators/VCreatorProperties.hpp"

namespace Orlo {

VCreatorPropertyBase::VCreatorPropertyBase() = default;
VCreatorPropertyBase::VCreatorPropertyBase(VCreatorPropertyBase const&) = default;
VCreatorPropertyBase& VCreatorPropertyBase::operator=(VCreatorPropertyBase const&) = default;
VCreatorPropertyBase::~VCreatorPropertyBase() = default;

VCreatorPropertyBase& VCreatorPropertyBase::assign(VCreatorPropertyBase const& other) {
    for (unsigned key = 0; key < KeyCount; ++key)
        if (other.isSet(static_cast<Key>(key)))
            set(key, other.get(static_cast<Key>(key)));
    return *this;
}

std::string VCreatorPropertyBase::keyname(char const* separator) const {
    std::string const& category = get(Category);
    return category.empty() ? get(Name) : category + separator + get(Name);
}

}  // namespace Orlo
