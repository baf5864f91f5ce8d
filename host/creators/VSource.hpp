/// Catalogue entries with their object class.
#pragma once

#include <cstdio>
#include <string>
#include <utility>

#include "host/creators/VActionNotifier.hpp"
#include "host/creators/VCreatorBase.hpp"
#include "host/creators/interface_token.hpp"
#include "host/pointers/Auto.hpp"
#include "host/pointers/Typename.hpp"
#include "host/values/Vprintf.hpp"

namespace Orlo {

// What a creator does whatever its class is. A plug-in has each of these once, and
// not in the code of every creator.

/// The union of the given words and the creator's; the one set that there is;
/// or none.
[[gnu::noinline]] inline PreferencesPtr mergedPreferences(PreferencesPtr const& given,
                                                          PreferencesPtr const& own) {
    if (given && own)
        return new VCreationPreferences(*given, *own);
    return given ? given : own;
}

/// A new object as a whole one, known to its creator, the host and all listeners.
[[gnu::noinline]] inline ObjectPtr introduced(
    WeakPtr<VManagedObjectBase, VManagedObjectBase> const& fresh, std::string const& name,
    Nucleo::Intercube const& context, VCreatorBase const& maker) {
    ObjectPtr const object(fresh);
    Vprintf(100, "VCreator::create(%s) got derived object\n", name.c_str());
    WeakCreatorPtr const creator(const_cast<VCreatorBase*>(&maker));
    object->setCreator(creator);
    object->enableRequestProcessing();
    VActionNotifier::VObjectCreation(object, context, creator);
    return object;
}

/// Offers the creator as a source of the type; says so where that fails.
[[gnu::noinline]] inline void enterAsInput(VInputCreatorBase& creator,
                                           std::type_info const& creatorType,
                                           std::type_info const& port) {
    if (registerVInput(port, WeakInputCreatorPtr(&creator)))
        return;
    std::string const creatorName = Nucleo::Typename(creatorType);
    std::string const portName = Nucleo::Typename(port);
    std::printf("WARNING: Could not register %s as input creator for type %s!\n",
                creatorName.c_str(), portName.c_str());
    VActionNotifier::Warning("Could not register " + creatorName + " as input creator for type " +
                             portName + "!");
}

[[gnu::noinline]] inline void removeFromInputs(VInputCreatorBase& creator,
                                               std::type_info const& port) {
    unregisterVInput(port, WeakInputCreatorPtr(&creator));
}

template <class X, class = void>
class VCreator;

/// Makes objects of the class `X`, whose constructor takes the name, 0 and the
/// merged preferences.
template <class X>
class VCreator<X, void> : public VCreatorBase {
public:
    template <class PropertiesOrName>
    VCreator(PropertiesOrName const& properties, int order, PreferencesPtr const& preferences,
             bool hidden, char const* token)
        : VCreatorBase(properties, order, preferences, hidden, token) {
        Vprintf(100, "VCreator::VCreator(%s,%d)\n", keyname("/").c_str(), order);
        std::fflush(stdout);
    }
    ~VCreator() override { deleteAllInstances(typeid(X)); }

    ObjectPtr create(std::string const& name, Nucleo::Intercube const& context,
                     PreferencesPtr const& preferences) const override {
        Vprintf(100, "VCreator::create(%s)\n", name.c_str());
        WeakPtr<VManagedObjectBase, VManagedObjectBase> const fresh(
            new X(name.empty() ? this->name() : name, 0,
                  mergedPreferences(preferences, this->preferences())));
        return introduced(fresh, name, context, *this);
    }

    std::string createChildname(std::string const& parentName) const override {
        std::string const name = VObject::createChildname(parentName);
        return name.empty() ? VObject::makeChildname(*this, parentName) : name;
    }
    using VCreatorBase::createChildname;

    AcceptList accept(ObjectPtr const& object) const override {
        return object ? VObject::accept(object) : AcceptList();
    }
};

/// Offers the objects of a creator wherever a value of type `Port` is wanted.
template <class Port, class Creator>
class VInputCreator : public Creator {
public:
    template <class... Args>
    explicit VInputCreator(Args&&... args) : Creator(std::forward<Args>(args)...) {
        enterAsInput(*this, typeid(VInputCreator), typeid(Port));
    }
    ~VInputCreator() override { removeFromInputs(*this, typeid(Port)); }
};

/// The complete creator: a static object of the source that holds the class
/// `X`. It takes the property list or the plain name, the order number, the
/// preferences, false, and the interface token.
template <class X, class Port>
class VSource : public Nucleo::Auto<VInputCreator<Port, VCreator<X, void>>> {
public:
    using Nucleo::Auto<VInputCreator<Port, VCreator<X, void>>>::Auto;
};

}  // namespace Orlo
