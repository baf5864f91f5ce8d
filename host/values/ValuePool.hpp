/// The store of values for one context.
#pragma once

#include <map>
#include <mutex>
#include <string>

#include "host/pointers/threads.hpp"
#include "host/values/VValueBase.hpp"

namespace Orlo {

class ValueNotifierList;

/// Values by name.
class LATTICE_API ValueMap {
public:
    /// The value of that name, or empty.
    ValuePtr getValue(std::string const& name) const;
    void setValue(std::string const& name, ValuePtr const& value);

    /// All names with their values, in alphabetical order.
    std::map<std::string, ValuePtr> const& entries() const noexcept { return values_; }

private:
    std::map<std::string, ValuePtr> values_;
};

/// The values that hold in one context, such as one viewer.
///
/// A parameter that has no value in a pool stands there with its own, global
/// one. Owner: counted; a parameter that dies takes its values out of all
/// pools. Threads: a mutex guards which values there are; [any].
class LATTICE_API ValuePool : public Nucleo::ReferenceBase<ValuePool> {
public:
    explicit ValuePool(std::string contextName = {});
    ~ValuePool() override;

    /// The context's name, such as `Viewer1`; empty for the common pool.
    std::string const& contextName() const noexcept { return context_; }

    /// Enters a value for the parameter that the notifier list belongs to and
    /// gives it back; if one stands there already, gives that one.
    ValuePtr createVariable(ValueNotifierList const& parameter, ValuePtr const& value);

    /// The value entered under a parameter's full name, or empty.
    ValuePtr retrieveValue(std::string const& parameterName) const;

    /// Removes a value, if there is one.
    void eraseVariable(std::string const& parameterName);

    /// How many values there are.
    std::size_t size() const;

private:
    std::string context_;
    mutable std::mutex mutex_;
    std::map<std::string, ValuePtr> variables_;
};

using PoolPtr = StrongPtr<ValuePool, ValuePool>;

}  // namespace Orlo
