#include "host/creators/VCreatorProperties.hpp"

namespace Orlo {

VCreatorPropertyBase::VCreatorPropertyBase() = default;
VCreatorPropertyBase::VCreatorPropertyBase(VCreatorPropertyBase const&) = default;
VCreatorPropertyBase& VCreatorPropertyBase::operator=(VCreatorPropertyBase const&) = default;
VCreatorPropertyBase::~VCreatorPropertyBase() = default;

VCreatorPropertyBase& VCreatorPropertyBase::assign(VCreatorPropertyBase const& other) {
    for (std::size_t key = 0; key < elements_.size(); ++key)
        if (!other.elements_[key].empty())
            elements_[key] = other.elements_[key];
    return *this;
}

std::string VCreatorPropertyBase::keyname(char const* separator) const {
    std::string const& category = get(Category);
    return category.empty() ? get(Name) : category + separator + get(Name);
}

}  // namespace Orlo
