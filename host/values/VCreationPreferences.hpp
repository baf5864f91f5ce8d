/// Words that steer how an object is made.
#pragma once

#include <set>
#include <string>

#include "host/pointers/Interface.hpp"
#include "host/pointers/StrongPtr.hpp"

namespace Orlo {

/// A set of words given to creators, objects and parameters.
///
/// Owner: counted. Threads: never changes after construction, so any thread may
/// ask. A preference set may be absent: an empty pointer.
class LATTICE_API VCreationPreferences : public Nucleo::Interface<VCreationPreferences> {
public:
    using Ptr = Nucleo::StrongPtr<VCreationPreferences, Nucleo::InterfaceBase>;

    explicit VCreationPreferences(std::string const& word);
    VCreationPreferences(std::string const& first, std::string const& second);
    /// A copy of another set; of an empty pointer, the empty set.
    explicit VCreationPreferences(Ptr const& other);
    /// The union of two sets.
    VCreationPreferences(VCreationPreferences const& first, VCreationPreferences const& second);
    VCreationPreferences(VCreationPreferences const&) = default;
    ~VCreationPreferences() override;

    bool contains(std::string const& word) const;

    /// The words in alphabetical order.
    std::set<std::string> const& words() const noexcept { return set_; }

private:
    std::set<std::string> set_;
};

using PreferencesPtr = VCreationPreferences::Ptr;

}  // namespace Orlo
