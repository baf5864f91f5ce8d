/// Values without their type.
#pragma once

#include <cstddef>
#include <string>
#include <typeinfo>

#include "host/pointers/Ageable.hpp"
#include "host/pointers/Chunk.hpp"
#include "host/pointers/Interface.hpp"
#include "host/pointers/threads.hpp"
#include "host/values/VManagedObjectBase.hpp"

namespace Orlo {

class VValueCreator;

/// The value of a parameter, in a parameter or in a value pool.
///
/// Owner: counted. Threads: a value is written by [updater] and [host] calls
/// that the host serialises; the host's pools guard which values there are, not
/// what they hold.
class LATTICE_API VValueBase : public Nucleo::ReferenceBase<VValueBase> {
public:
    using Ptr = StrongPtr<VValueBase, VValueBase>;
    using Weak = WeakPtr<VValueBase, VValueBase>;

    VValueBase();
    ~VValueBase() override;

    /// The type of what is held. [any]
    virtual std::type_info const& type() const = 0;
    /// A new value that holds the same. [any]
    virtual Ptr copy() const = 0;
    /// Takes over what another value holds; false, and no change, if that is of
    /// another type. [host]
    virtual bool assign(Ptr const& other) = 0;
    /// Reads a text; false, and no change, if it does not parse. [host]
    virtual bool setFromText(std::string const& text) = 0;
    /// The text form. [any]
    virtual std::string text() const = 0;
    /// Whether another value is of another type or holds something else. [any]
    virtual bool differs(Ptr const& other) const = 0;
    /// The value that this one is a part of: none. [any]
    virtual Ptr whole() const;
    /// Tells the value who computes it. [host]
    virtual void setSource(WeakPtr<VManagedObject, VManagedObjectBase> const& source);
    /// An interface that the value offers: none. [any]
    virtual StrongPtr<Nucleo::InterfaceBase, Nucleo::InterfaceBase> getInterface() const;
    /// The time stamp of the value. [any]
    virtual Nucleo::Ageable* ageable() = 0;
    virtual Nucleo::Ageable const* ageable() const = 0;
    /// What makes values of this type from texts. [any]
    virtual StrongPtr<VValueCreator, VValueCreator> creator() const = 0;
    /// Takes the value from element `index` of a chunk, which must be one of
    /// this type, or with `write` other than 0 puts it there. False if there is
    /// no such element. [host]
    virtual bool exchangeWithChunk(Nucleo::ChunkBase* chunk, std::size_t index, int write) = 0;
    /// Tells the value which value contains it. [host]
    virtual void setContainerValue(Weak const& container);

    /// A member of this value; the empty name means the value itself. Empty if
    /// there is no such member. [any]
    Ptr component(std::string const& member) const;
};

using ValuePtr = VValueBase::Ptr;

/// A value whose type is known.
template <class T>
class VTypedValueBase : public VValueBase {
public:
    /// Copies the value out; false leaves the target alone. [any]
    virtual bool getValue(T& target) const = 0;
    /// Copies a value in; true if consumers should hear of it. [host]
    virtual bool setValue(T const& source) = 0;
    /// A chunk of `count` elements of this type. [any]
    virtual StrongPtr<Nucleo::ChunkBase, Nucleo::ChunkBase> makeChunk(std::size_t count) const = 0;
};

}  // namespace Orlo
