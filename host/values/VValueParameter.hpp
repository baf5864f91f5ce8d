/// Parameters with their type.
#pragma once

#include "host/values/VParameter.hpp"
#include "host/values/VValue.hpp"
#include "host/values/Vprintf.hpp"

namespace Orlo {

/// A parameter of type `T`.
template <class T>
class VValueParameter : public VParameter {
public:
    using TypedValue = StrongPtr<VTypedValueBase<T>, VValueBase>;

    VValueParameter(StrongPtr<VValue<T>, VValueBase> const& defaultValue, std::string const& name,
                    PreferencesPtr const& preferences = nullptr)
        : VParameter(defaultValue, name, preferences), default_(defaultValue) {}

    ValuePtr DefaultValue() const override { return default_; }

    Ptr copy() const override {
        StrongPtr<VValue<T>, VValueBase> const value(default_->copy());
        Ptr const twin = new VValueParameter(value, localName(), preferences());
        twin->copyShadows(*this);
        return twin;
    }

    ValuePtr poolVariable(PoolPtr const& pool) const override {
        if (!pool)
            return nullptr;
        if (TypedValue const found(pool->retrieveValue(Name())); found)
            return found;
        ValuePtr const fresh = copyOfDefault();
        addShadow(pool);
        return pool->createVariable(*this, fresh);
    }

    bool setGlobalValue(ValuePtr const& source, PoolPtr const& pool) override {
        TypedValue const own(ownValue());
        if (!source || !own)
            return false;
        static_cast<void>(own->assign(source->component("")));  // of another type: stays as it is
        T now{};
        own->getValue(now);
        Vprintf(50, "VParameter::setGlobalValue() got variable with %s\n",
                VValueTrait<T>::Text(now).c_str());
        ValuePtr const local = getLocalValue(pool, "", false);
        (local ? local : ValuePtr(own))->ageable()->setAge(Nucleo::Ageable::now());
        return true;
    }

    ValuePtr copyOfDefault() const override { return default_->copy(); }

private:
    StrongPtr<VValue<T>, VValueBase> default_;
};

}  // namespace Orlo
