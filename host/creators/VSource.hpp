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

/// The union of the given words and the creator's; the one set that there is;
/// or none.
inline PreferencesPtr mergedPreferences(PreferencesPtr const& given, PreferencesPtr const& own) {
    if (given && own)
        return new VCreationPreferences(*given, *own);
    return given ? given : own;
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
        ObjectPtr const object(WeakPtr<X, VManagedObjectBase>(
            new X(name.empty() ? this->name() : name, 0,
                  mergedPreferences(preferences, this->preferences()))));
        Vprintf(100, "VCreator::create(%s) got derived object\n", name.c_str());
        WeakCreatorPtr const creator(const_cast<VCreator*>(this));
        object->setCreator(creator);
        object->enableRequestProcessing();
        VActionNotifier::VObjectCreation(object, context, creator);
        return object;
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
        if (registerVInput(typeid(Port), WeakInputCreatorPtr(this)))
            return;
        std::string const creatorType = Nucleo::Typename(typeid(VInputCreator));
        std::string const portType = Nucleo::Typename(typeid(Port));
        std::printf("WARNING: Could not register %s as input creator for type %s!\n",
                    creatorType.c_str(), portType.c_str());
        VActionNotifier::Warning("Could not register " + creatorType +
                                 " as input creator for type " + portType + "!");
    }
    ~VInputCreator() override { unregisterVInput(typeid(Port), WeakInputCreatorPtr(this)); }
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
