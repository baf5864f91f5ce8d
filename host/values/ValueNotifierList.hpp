/// Who wants to hear of a value.
#pragma once

#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

#include "host/pointers/threads.hpp"
#include "host/values/ValuePool.hpp"

namespace Orlo {

/// Hears of changes of a parameter's value.
class LATTICE_API ValueNotifier : public Nucleo::ReferenceBase<ValueNotifier> {
public:
    ~ValueNotifier() override;

    /// The value has changed in the pool. [any]
    virtual void valueChanged(ValuePtr const& value, PoolPtr const& pool,
                              std::string const& member) = 0;
};

/// The listeners of one parameter, and the pools that hold a value of it.
///
/// Owner: counted; root of the family of parameters. Listeners are held weakly.
/// Threads: guarded by a mutex; [any].
class LATTICE_API ValueNotifierList : public Nucleo::ReferenceBase<ValueNotifierList> {
public:
    ValueNotifierList();
    ~ValueNotifierList() override;

    /// Advances the global time and gives the parameter's values the new stamp.
    /// [host]
    virtual void touch();

    /// Adds a listener. Those that have died are forgotten, each time that the list
    /// has grown to twice its size, so that one costs the same in any list.
    void addNotifier(WeakPtr<ValueNotifier, ValueNotifier> const& notifier);
    /// Remembers that the pool holds a value of this parameter.
    void addShadow(PoolPtr const& pool) const;
    /// Takes over the pools that another list remembers.
    void copyShadows(ValueNotifierList const& other) const;

    /// The pools that are still alive.
    std::vector<PoolPtr> shadows() const;

protected:
    /// The listeners that are still alive.
    std::vector<StrongPtr<ValueNotifier, ValueNotifier>> listeners() const;

private:
    mutable std::mutex mutex_;
    std::vector<WeakPtr<ValueNotifier, ValueNotifier>> notifiers_;
    std::size_t notifiersAtNextSweep_ = 0;
    mutable std::vector<WeakPtr<ValuePool, ValuePool>> pools_;
};

}  // namespace Orlo
