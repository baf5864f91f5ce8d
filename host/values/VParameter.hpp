/// Parameters without their type.
#pragma once

#include <memory>
#include <string>

#include "host/pointers/Intercube.hpp"
#include "host/pointers/threads.hpp"
#include "host/values/VCreationPreferences.hpp"
#include "host/values/ValueNotifierList.hpp"

namespace Orlo {

/// A named value of an object, global and, where it is set so, per value pool.
///
/// Owner: counted, held by the slots that use it. Threads: properties and flags
/// are [host]; reading values is [any], as far as `ValuePool` and `VValueBase`
/// allow. Errors: reading what is not there gives empty pointers.
class LATTICE_API VParameter : public ValueNotifierList, public Nucleo::Intercube {
public:
    using Ptr = StrongPtr<VParameter, ValueNotifierList>;

    /// Bits of `flags`.
    enum Flag : unsigned {
        KeepsLocalValues = 1,  ///< the parameter's mark: pools may hold values of their own
        Computed = 8,          ///< the object computes the value; a typed slot clears this
    };

    /// With its default value, of which the own value starts as a copy.
    VParameter(ValuePtr const& defaultValue, std::string const& name,
               PreferencesPtr const& preferences);
    VParameter(VParameter const&) = delete;
    VParameter& operator=(VParameter const&) = delete;
    ~VParameter() override;

    /// Advances the global time and stamps the own value with it. [host]
    void touch() override;

    /// The value that the parameter was made with. [any]
    virtual ValuePtr DefaultValue() const;
    /// Another parameter with the same name and default. [any]
    virtual Ptr copy() const = 0;
    /// The value for a pool, made from the default if there is none. Empty for
    /// an empty pool. [any]
    virtual ValuePtr poolVariable(PoolPtr const& pool) const = 0;
    /// Takes over a value as the parameter's own, says so at verbosity 50, stamps
    /// the value that holds in the pool, or else the own one, with the present
    /// time, and gives true. A source of another type changes no value: whoever
    /// does not know the type compares it first. False only where there is no
    /// source or no own value. [host]
    virtual bool setGlobalValue(ValuePtr const& source, PoolPtr const& pool) = 0;
    /// A copy of the default value. [any]
    virtual ValuePtr copyOfDefault() const = 0;

    /// Binds the parameter to its object; from then on its full name is unique
    /// in the process.
    void setCreator(VSlotContainer* owner);

    /// The value of this parameter in the pool, made there if `create` says so;
    /// empty if there is none.
    ValuePtr getLocalValue(PoolPtr const& pool, std::string const& member, bool create) const;

    /// The value that holds where no pool has one of its own.
    ValuePtr const& ownValue() const noexcept { return own_; }

    /// Sets a named property of the parameter, such as "min"; it has no effect
    /// on values.
    void setProperty(std::string const& name, ValuePtr const& value,
                     WeakPtr<ValueNotifier, ValueNotifier> const& notifier,
                     ValueNotifierList const* source, WeakPtr<ValuePool, ValuePool> const& pool);
    /// The properties, or null if none was ever set.
    ValueMap const* properties() const noexcept { return propertyMap_.get(); }

    /// Tells all listeners, except `notifier`, that the value has changed.
    /// `source` and `origin` name who changed it, where that is known.
    void notifyValueChange(ValuePtr const& value, PoolPtr const& pool, std::string const& member,
                           WeakPtr<ValueNotifier, ValueNotifier> const& notifier,
                           ValueNotifierList const* source, VManagedObjectBase const* origin);

    /// The full name: the key of this parameter's values in the pools.
    std::string const& Name() const noexcept { return fullName_; }
    /// The name that the parameter was made with.
    std::string const& localName() const noexcept { return shortName_; }
    PreferencesPtr const& preferences() const noexcept { return preferences_; }

    unsigned flags = KeepsLocalValues | Computed;

    bool keepsLocalValues() const noexcept { return (flags & KeepsLocalValues) != 0; }

private:
    std::string shortName_;
    std::string fullName_;
    ValuePtr default_;
    ValuePtr own_;
    PreferencesPtr preferences_;
    std::unique_ptr<ValueMap> propertyMap_;
};

using ParameterPtr = VParameter::Ptr;

/// The value object that holds for a pool: the pool's own if the parameter is
/// marked for local values and there is one (made if `create` says so), else
/// the parameter's. May be empty. [any]
inline ValuePtr valueInPool(VParameter const& parameter, PoolPtr const& pool, bool create) {
    if (parameter.keepsLocalValues())
        if (ValuePtr const local = parameter.getLocalValue(pool, "", create))
            return local;
    return parameter.ownValue();
}

/// Reads a parameter as it holds in a pool. False, and the target as it was, if
/// there is no value or it is no `T`. [any]
template <class T>
bool readParameter(VParameter const& parameter, PoolPtr const& pool, T& target) {
    StrongPtr<VTypedValueBase<T>, VValueBase> const typed(valueInPool(parameter, pool, false));
    return typed && typed->getValue(target);
}

}  // namespace Orlo
