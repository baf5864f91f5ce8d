/// The member that an object holds for each of its parameters.
#pragma once

#include <atomic>
#include <cstdio>
#include <string>

#include "host/pointers/Auto.hpp"
#include "host/pointers/threads.hpp"
#include "host/values/VSlot.hpp"
#include "host/values/VValueParameter.hpp"

namespace Orlo {

/// Makes slots of one type by name, for the host.
class LATTICE_API TypedSlotCreator : public Nucleo::ReferenceBase<TypedSlotCreator> {
public:
    using Weak = WeakPtr<TypedSlotCreator, TypedSlotCreator>;

    TypedSlotCreator();
    ~TypedSlotCreator() override;

    /// Makes a slot of this type on the object, with the value that the text
    /// means; `ok` tells whether it parsed. [host]
    virtual SlotPtr create(VObject* object, std::string const& name, std::string const& text,
                           bool& ok, int expertLevel) const = 0;

    /// Enters and removes the slot creator of a type. [loader]
    static void registerTypedSlotCreator(std::type_info const& type, Weak const& creator,
                                         std::string const& typeName);
    static void unregisterTypedSlotCreator(std::type_info const& type, Weak const& creator,
                                           std::string const& typeName);

    /// Counts the slots that have died.
    static std::atomic<unsigned> InternalTypeCreatorAccessory;
};

/// Puts a parameter into a slot of the object that it belongs to: what is done
/// whatever its type is, once in a plug-in.
[[gnu::noinline]] inline SlotPtr slotOf(VSlotContainer* container, std::string const& name,
                                        int expertLevel, ParameterPtr const& parameter) {
    parameter->setCreator(container);
    SlotPtr slot = VSlotGlobals::addParameter(container, name, expertLevel, parameter, true);
    if (slot)
        slot->parameter()->flags &= ~static_cast<unsigned>(VParameter::Computed);
    return slot;
}

/// A parameter of type `T` of an object.
///
/// Owner: the object, as a member. Threads: construction is [host]; reading is
/// [updater]. Errors: a slot made without an object says so once and works by
/// itself; a read that finds no value leaves its target alone.
template <class T>
class TypedSlot {
public:
    class SlotCreator;

    TypedSlot(VObject* that, std::string const& name, T const& initialValue, int expertLevel)
        : slotName_(name), initial_(initialValue) {
        if (Nucleo::SpeakPtr::Tracing)
            Nucleo::SpeakPtr::theSpeaker()->printRS(
                "TypedSlot(VObject*that, const string&name, const T&initialValue, int expertLevel",
                "make", typeid(T), true);
        VSlotContainer* const container = VSlotGlobals::containerOf(that);
        if (that == nullptr)
            VSlotGlobals::assertionFail(nullptr, name, typeid(T));
        StrongPtr<VValue<T>, VValueBase> const value = new VValue<T>(initialValue);
        own_ = new VValueParameter<T>(value, name);
        hostSlot_ = slotOf(container, name, expertLevel, own_);
    }
    TypedSlot(TypedSlot const&) = delete;
    TypedSlot& operator=(TypedSlot const&) = delete;

    ~TypedSlot() {
        if (SlotCreator::registered())
            ++TypedSlotCreator::InternalTypeCreatorAccessory;
        else
            std::puts("Typeslot has a problem, its creators were not registered!?");
    }

    SlotPtr const& slot() const noexcept { return hostSlot_; }
    std::string const& name() const noexcept { return slotName_; }
    T const& initialValue() const noexcept { return initial_; }

    /// Reads the parameter as it holds in the pool. False, and the target as it
    /// was, if there is no value of this type.
    bool read(PoolPtr const& pool, T& target) const {
        return hostSlot_ && readParameter(*hostSlot_->parameter(), pool, target);
    }

    /// Gives the parameter a property such as "min". It is advice to the user
    /// interface: no value is clamped by it.
    template <class P>
    void setProperty(std::string const& property, P const& value) {
        ParameterPtr const parameter = hostSlot_->parameter();
        if (ValueMap const* const properties = parameter->properties()) {
            StrongPtr<VTypedValueBase<P>, VValueBase> const present(properties->getValue(property));
            if (present) {
                present->setValue(value);
                return;
            }
        }
        parameter->setProperty(property, new VValue<P>(value), nullptr, nullptr, nullptr);
    }

private:
    SlotPtr hostSlot_;
    std::string slotName_;
    StrongPtr<VValueParameter<T>, ValueNotifierList> own_;
    T initial_;
};

/// Makes `TypedSlot<T>`-like slots by name; one object per type and library.
template <class T>
class TypedSlot<T>::SlotCreator : public TypedSlotCreator {
public:
    SlotCreator() {
        registerTypedSlotCreator(typeid(T), Weak(this), Nucleo::Typename(typeid(T)));
        registration() = true;
    }
    ~SlotCreator() override {
        unregisterTypedSlotCreator(typeid(T), Weak(this), Nucleo::Typename(typeid(T)));
    }

    SlotPtr create(VObject* object, std::string const& name, std::string const& text, bool& ok,
                   int expertLevel) const override {
        T value{};
        ok = VValueTrait<T>::setValueFromText(value, text);
        return TypedSlot(object, name, value, expertLevel).slot();
    }

    /// The one object, built at the first call.
    static SlotCreator& theCreator() {
        static Nucleo::Auto<SlotCreator> creator;
        return creator;
    }

    /// Whether the slot creator of this type was ever registered; it stays so
    /// when the library is torn down, since objects die after their types.
    static bool registered() noexcept { return registration(); }

private:
    static bool& registration() noexcept {
        static bool flag = false;
        return flag;
    }
};

/// Builds, on first need, the slot creator and the value creator of each type,
/// in the order named. A source calls it once, after its creators.
template <class... Ts>
bool registerValueTypes() {
    ((static_cast<void>(TypedSlot<Ts>::SlotCreator::theCreator()),
      static_cast<void>(TypedValueCreator<Ts>::theCreator())),
     ...);
    return true;
}

}  // namespace Orlo
