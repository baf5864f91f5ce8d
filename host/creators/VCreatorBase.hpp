/// Catalogue entries without their object class.
#pragma once

#include <list>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

#include "host/creators/VCreatorProperties.hpp"
#include "host/object/VObject.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// The domain of creators that serve as inputs.
class LATTICE_API VInputCreatorBase : public virtual VManagedObjectBase,
                                      public VManagedDomainObject<VInputCreatorBase> {
public:
    VInputCreatorBase();
    ~VInputCreatorBase() override;
};

using WeakInputCreatorPtr = WeakPtr<VInputCreatorBase, VManagedObjectBase>;

/// One kind of object that can be made: an entry of the host's catalogue.
///
/// Owner: a static object of its library, in the catalogue from construction to
/// destruction. Threads: `create` may be called from any thread.
class LATTICE_API VCreatorBase : public VInputCreatorBase, public VCreatorProperties {
public:
    /// An entry with a property list. `order` is its order number, `hidden`
    /// keeps it out of menus, `token` is the interface that it was built
    /// against. [loader]
    VCreatorBase(VCreatorProperties const& properties, int order, PreferencesPtr const& preferences,
                 bool hidden, char const* token);
    /// An entry with nothing but a name, which may hold its folder: `A/B`.
    VCreatorBase(std::string const& name, int order, PreferencesPtr const& preferences, bool hidden,
                 char const* token);
    VCreatorBase(VCreatorBase const&) = delete;
    VCreatorBase& operator=(VCreatorBase const&) = delete;
    ~VCreatorBase() override;

    /// Makes an object in a context. The empty name stands for the creator's
    /// own; the preferences are united with the creator's. [any]
    virtual ObjectPtr create(std::string const& name, Nucleo::Intercube const& context,
                             PreferencesPtr const& preferences) const = 0;
    /// A name for an object that is made as a child of the one named. [any]
    virtual std::string createChildname(std::string const& parentName) const = 0;
    /// The same for a child that fills an input. [any]
    virtual std::string createChildname(WeakObjectPtr const& parent,
                                        StrongPtr<VAcceptInfo, VAcceptInfo> const& input) const;
    /// How the given object would take an object of this creator. [any]
    virtual AcceptList accept(ObjectPtr const& object) const = 0;

    /// The creator's own name.
    std::string const& name() const { return get(VCreatorPropertyElements::Name); }
    int orderNumber() const noexcept { return order_; }
    bool isHidden() const noexcept { return hidden_; }
    PreferencesPtr const& preferences() const noexcept { return preferences_; }
    /// The interface that the creator was built against: the text that was passed,
    /// which belongs to the creator's library.
    char const* token() const noexcept { return token_; }

    /// Notes an object of this creator, which takes itself out when it goes.
    void addInstance(WeakObjectPtr const& object) const;
    void removeInstance(VObject const& object) const;
    /// The objects of this creator that are alive, the oldest first.
    std::vector<WeakObjectPtr> instances() const;
    /// Deletes all living objects of this creator, whoever holds them: their
    /// holders find their pointers empty.
    void deleteAllInstances(std::type_info const& type) const;

private:
    struct State;
    int order_;
    bool hidden_;
    PreferencesPtr preferences_;
    char const* token_;
    std::unique_ptr<State> state_;
};

using WeakCreatorPtr = WeakPtr<VCreatorBase, VManagedObjectBase>;

/// Enters a creator as a source of values of the type. False if it cannot: a
/// creator of the same key stands there already. [loader]
LATTICE_API bool registerVInput(std::type_info const& type, WeakInputCreatorPtr const& creator);
/// Removes it, if it is there. [loader]
LATTICE_API void unregisterVInput(std::type_info const& type, WeakInputCreatorPtr const& creator);

}  // namespace Orlo
