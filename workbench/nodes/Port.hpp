/// How objects of a scene hand data on.
#pragma once

#include <memory>
#include <string>

#include "host/object/VObject.hpp"
#include "host/values/VValueParameter.hpp"
#include "runtime/vellum/ColormapValue.hpp"

namespace Orlo {

/// Shared data has no text form to be read back from; it names what it is.
template <class Data>
struct VValueTrait<std::shared_ptr<Data const>> {
    static bool setValueFromText(std::shared_ptr<Data const>&, std::string const&) { return false; }
    static std::string Text(std::shared_ptr<Data const> const&) { return Data::Description; }
};

}  // namespace Orlo

namespace workbench {

/// The presence of an object, where nothing else of it matters.
struct Presence {
    static constexpr char const* Description = "An Object.";
};

using PresencePtr = std::shared_ptr<Presence const>;

template <class T>
Orlo::ParameterPtr makePortParameter(std::string const& name) {
    Orlo::StrongPtr<Orlo::VValue<T>, Orlo::VValueBase> const value = new Orlo::VValue<T>;
    return new Orlo::VValueParameter<T>(value, name);
}

/// The value of a map has the age of the map.
template <>
inline Orlo::ParameterPtr makePortParameter<Orlo::ColormapPtr>(std::string const& name) {
    return Orlo::makeColormapParameter(name);
}

/// An input that waits for a connection.
///
/// Owner: the object, as a member. Threads: construction is [host], reading is
/// [updater].
template <class T>
class Input {
public:
    Input(Orlo::VObject* that, std::string const& name) {
        Orlo::ParameterPtr const parameter = makePortParameter<T>(name);
        parameter->setCreator(that);
        parameter->flags &= ~static_cast<unsigned>(Orlo::VParameter::Computed);
        slot_ = Orlo::VSlotGlobals::addParameter(that, name, 0, parameter, true);
    }

    Orlo::SlotPtr const& slot() const noexcept { return slot_; }

    /// What the provider gives in the pool; empty data without a provider.
    T read(Orlo::PoolPtr const& pool) const {
        T value{};
        Orlo::readParameter(*slot_->parameter(), pool, value);
        return value;
    }

private:
    Orlo::SlotPtr slot_;
};

/// An output, with a value for each pool.
///
/// Owner: the object, as a member. Threads: construction is [host], publishing
/// is [updater].
template <class T>
class Output {
public:
    Output(Orlo::VObject* that, std::string const& name) : parameter_(makePortParameter<T>(name)) {
        parameter_->setCreator(that);
        Orlo::VSlotGlobals::addParameter(that, name, 0, parameter_, false);
    }

    /// Offers a value to the consumers and tells the listeners.
    void publish(Orlo::PoolPtr const& pool, T const& value) const {
        Orlo::StrongPtr<Orlo::VTypedValueBase<T>, Orlo::VValueBase> const holder(
            Orlo::valueInPool(*parameter_, pool, true));
        holder->setValue(value);
        holder->ageable()->touch();
        parameter_->notifyValueChange(holder, pool, "", nullptr, nullptr, nullptr);
    }

    /// What stands there for the pool.
    T read(Orlo::PoolPtr const& pool) const {
        T value{};
        Orlo::readParameter(*parameter_, pool, value);
        return value;
    }

private:
    Orlo::ParameterPtr parameter_;
};

}  // namespace workbench
