#include "host/values/VCreationPreferences.hpp"

namespace Orlo {

VCreationPreferences::VCreationPreferences(std::string const& word) : set_{word} {}

VCreationPreferences::VCreationPreferences(std::string const& first, std::string const& second)
    : set_{first, second} {}

VCreationPreferences::VCreationPreferences(Ptr const& other) {
    if (other)
        set_ = other->set_;
}

VCreationPreferences::VCreationPreferences(VCreationPreferences const& first,
                                           VCreationPreferences const& second)
    : set_(first.set_) {
    set_.insert(second.set_.begin(), second.set_.end());
}

VCreationPreferences::~VCreationPreferences() = default;

bool VCreationPreferences::contains(std::string const& word) const {
    return set_.contains(word);
}

}  // namespace Orlo
