/// What makes values from texts, by type.
#pragma once

#include <atomic>
#include <string>

#include "host/pointers/Auto.hpp"
#include "host/pointers/Typename.hpp"
#include "host/pointers/threads.hpp"
#include "host/values/VValueBase.hpp"

namespace Orlo {

/// Makes values of one type from text; the host finds it by the type's name.
class LATTICE_API VValueCreator : public Nucleo::ReferenceBase<VValueCreator> {
public:
    VValueCreator();
    ~VValueCreator() override;

    /// A new value with the text's meaning; `ok` tells whether the text parsed.
    /// [any]
    virtual ValuePtr create(std::string const& text, bool& ok) const = 0;

    /// Enters a creator under the name of its type. Several libraries may enter
    /// one each for the same type; the host uses the latest that is alive.
    /// [loader]
    static void registerCreator(WeakPtr<VValueCreator, VValueCreator> const& creator,
                                std::string const& typeName);
};

template <class T>
class VValue;

/// The creator of `VValue<T>`, one object per type and library.
template <class T>
class TypedValueCreator : public VValueCreator {
public:
    /// How many values of this type have died. Static, since the last values
    /// die after their creator.
    static inline std::atomic<unsigned> destroyedValues{0};

    TypedValueCreator() {
        registerCreator(WeakPtr<VValueCreator, VValueCreator>(this), Nucleo::Typename(typeid(T)));
    }

    ValuePtr create(std::string const& text, bool& ok) const override {
        ValuePtr const value = new VValue<T>;
        ok = value->setFromText(text);
        return value;
    }

    /// The one object, built at the first call.
    static TypedValueCreator& theCreator() {
        static Nucleo::Auto<TypedValueCreator> creator;
        return creator;
    }
};

}  // namespace Orlo
