/// Values with their type.
#pragma once

#include "host/values/VValueCreator.hpp"
#include "host/values/VValueTrait.hpp"

namespace Orlo {

/// Holds one `T`. Copying, text and comparison go through `VValueTrait<T>` and
/// the operators of `T`; the age starts with the present time.
template <class T>
class VValue : public VTypedValueBase<T>, public Nucleo::Ageable {
public:
    VValue() = default;
    explicit VValue(T const& initial) : value_(initial) {}
    ~VValue() override { ++TypedValueCreator<T>::destroyedValues; }

    std::type_info const& type() const override { return typeid(T); }
    ValuePtr copy() const override { return new VValue(value_); }

    bool assign(ValuePtr const& other) override {
        WeakPtr<VTypedValueBase<T>, VValueBase> const typed(other);
        return typed && typed->getValue(value_);
    }

    bool setFromText(std::string const& text) override {
        return VValueTrait<T>::setValueFromText(value_, text);
    }
    std::string text() const override { return VValueTrait<T>::Text(value_); }

    bool differs(ValuePtr const& other) const override {
        WeakPtr<VTypedValueBase<T>, VValueBase> const typed(other);
        T theirs{};
        return !typed || !typed->getValue(theirs) || !(theirs == value_);
    }

    Nucleo::Ageable* ageable() override { return this; }
    Nucleo::Ageable const* ageable() const override { return this; }

    StrongPtr<VValueCreator, VValueCreator> creator() const override {
        return &static_cast<VValueCreator&>(TypedValueCreator<T>::theCreator());
    }

    bool exchangeWithChunk(Nucleo::ChunkBase* chunk, std::size_t index, int write) override {
        auto* const typed = dynamic_cast<Nucleo::Chunk<T>*>(chunk);
        if (typed == nullptr || index >= typed->size())
            return false;
        if (write != 0)
            (*typed->vector())[index] = value_;
        else
            value_ = (*typed->vector())[index];
        return true;
    }

    bool getValue(T& target) const override {
        if (&target != &value_)  // as `assign` of a value to itself has it
            target = value_;
        return true;
    }
    bool setValue(T const& source) override {
        value_ = source;
        return true;
    }

    StrongPtr<Nucleo::ChunkBase, Nucleo::ChunkBase> makeChunk(std::size_t count) const override {
        return new Nucleo::Chunk<T>(count);
    }

private:
    T value_{};
};

}  // namespace Orlo
