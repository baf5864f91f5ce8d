/// One table of rules for the value objects of all six types.
#include "host/values/VValue.hpp"

#include <gtest/gtest.h>

#include "host/pointers/Typename.hpp"
#include "tests/host/values/sixTypes.hpp"
#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using namespace Orlo;

template <class T>
class Value : public testing::Test {
protected:
    using Typed = StrongPtr<VValue<T>, VValueBase>;

    Typed const first_ = new VValue<T>(Sample<T>::first());
    Typed const second_ = new VValue<T>(Sample<T>::second());
    /// A value of a type that is none of the six.
    ValuePtr const stranger_ = new VValue<std::string>("stranger");

    static T valueOf(ValuePtr const& value) {
        T held{};
        EXPECT_TRUE((StrongPtr<VTypedValueBase<T>, VValueBase>(value)->getValue(held)));
        return held;
    }
};

TYPED_TEST_SUITE(Value, SixTypes, SixNames);

TYPED_TEST(Value, HasItsOperationsInTheirOrder) {
    using T = TypeParam;
    using View = Nucleo::Ageable* (VValueBase::*)();
    using ConstView = Nucleo::Ageable const* (VValueBase::*)() const;
    EXPECT_EQ(virtualSlot(&VValue<T>::finalUnction), 1u);
    EXPECT_EQ(virtualSlot(&VValue<T>::type), 4u);
    EXPECT_EQ(virtualSlot(&VValue<T>::copy), 5u);
    EXPECT_EQ(virtualSlot(&VValue<T>::assign), 6u);
    EXPECT_EQ(virtualSlot(&VValue<T>::setFromText), 7u);
    EXPECT_EQ(virtualSlot(&VValue<T>::text), 8u);
    EXPECT_EQ(virtualSlot(&VValue<T>::differs), 9u);
    EXPECT_EQ(virtualSlot(&VValueBase::whole), 10u);
    EXPECT_EQ(virtualSlot(&VValueBase::setSource), 11u);
    EXPECT_EQ(virtualSlot(&VValueBase::getInterface), 12u);
    EXPECT_EQ(virtualSlot(static_cast<View>(&VValueBase::ageable)), 13u);
    EXPECT_EQ(virtualSlot(static_cast<ConstView>(&VValueBase::ageable)), 14u);
    EXPECT_EQ(virtualSlot(&VValue<T>::creator), 15u);
    EXPECT_EQ(virtualSlot(&VValue<T>::exchangeWithChunk), 16u);
    EXPECT_EQ(virtualSlot(&VValueBase::setContainerValue), 17u);
    EXPECT_EQ(virtualSlot(&VTypedValueBase<T>::getValue), 18u);
    EXPECT_EQ(virtualSlot(&VTypedValueBase<T>::setValue), 19u);
    EXPECT_EQ(virtualSlot(&VTypedValueBase<T>::makeChunk), 20u);
}

TYPED_TEST(Value, DerivesFromItsTypedBaseThenTheTimeStamp) {
    static_assert(std::is_base_of_v<VTypedValueBase<TypeParam>, VValue<TypeParam>>);
    static_assert(std::is_base_of_v<Nucleo::ReferenceBase<VValueBase>, VValueBase>);
    auto const& value = *this->first_;
    EXPECT_LT(static_cast<void const*>(static_cast<VTypedValueBase<TypeParam> const*>(&value)),
              static_cast<void const*>(static_cast<Nucleo::Ageable const*>(&value)));
}

TYPED_TEST(Value, TellsItsType) {
    EXPECT_EQ(this->first_->type(), typeid(TypeParam));
}

TYPED_TEST(Value, AlwaysGivesAndTakesItsValue) {
    TypeParam held{};
    EXPECT_TRUE(this->first_->getValue(held));
    EXPECT_TRUE(held == Sample<TypeParam>::first());
    EXPECT_TRUE(this->first_->setValue(Sample<TypeParam>::second()));
    EXPECT_TRUE(this->first_->setValue(Sample<TypeParam>::second())) << "also the same again";
    EXPECT_TRUE(this->valueOf(this->first_) == Sample<TypeParam>::second());
}

TYPED_TEST(Value, CopiedIsAnotherObjectWithTheSameValue) {
    ValuePtr const copy = this->first_->copy();
    EXPECT_NE(copy.controlBlock(), this->first_.controlBlock());
    EXPECT_EQ(copy->type(), typeid(TypeParam));
    EXPECT_TRUE(this->valueOf(copy) == Sample<TypeParam>::first());
    this->first_->setValue(Sample<TypeParam>::second());
    EXPECT_TRUE(this->valueOf(copy) == Sample<TypeParam>::first());
}

TYPED_TEST(Value, AssignsFromItsOwnTypeOnly) {
    EXPECT_TRUE(this->first_->assign(this->second_));
    EXPECT_TRUE(this->valueOf(this->first_) == Sample<TypeParam>::second());
    EXPECT_FALSE(this->first_->assign(this->stranger_));
    EXPECT_FALSE(this->first_->assign(nullptr));
    EXPECT_TRUE(this->valueOf(this->first_) == Sample<TypeParam>::second());
}

TYPED_TEST(Value, DiffersFromAnotherValueAnotherTypeAndNothing) {
    EXPECT_FALSE(this->first_->differs(this->first_->copy()));
    EXPECT_TRUE(this->first_->differs(this->second_));
    EXPECT_TRUE(this->first_->differs(this->stranger_));
    EXPECT_TRUE(this->first_->differs(nullptr));
}

/// A value that gives nothing.
template <class T>
class Silent : public VValue<T> {
public:
    bool getValue(T&) const override { return false; }
};

TYPED_TEST(Value, DiffersFromOneThatGivesNothingAndTakesNothingFromIt) {
    ValuePtr const silent = new Silent<TypeParam>;
    EXPECT_TRUE(this->first_->differs(silent));
    EXPECT_FALSE(this->first_->assign(silent));
    EXPECT_TRUE(this->valueOf(this->first_) == Sample<TypeParam>::first());
}

TYPED_TEST(Value, ReadsBackWhatItWrites) {
    this->second_->assign(this->first_);
    this->first_->setValue(Sample<TypeParam>::second());
    EXPECT_EQ(this->first_->text(), VValueTrait<TypeParam>::Text(Sample<TypeParam>::second()));
    EXPECT_TRUE(this->second_->setFromText(this->first_->text()));
    EXPECT_FALSE(this->second_->differs(this->first_));
}

TYPED_TEST(Value, KeepsItsValueWhenATextDoesNotParse) {
    EXPECT_FALSE(this->first_->setFromText("--no such text--"));
    EXPECT_TRUE(this->valueOf(this->first_) == Sample<TypeParam>::first());
}

TYPED_TEST(Value, HasNoWholeNoInterfaceAndOnlyItselfAsComponent) {
    EXPECT_FALSE(this->first_->whole());
    EXPECT_FALSE(this->first_->getInterface());
    EXPECT_EQ(this->first_->component("").get(), this->first_.get());
    EXPECT_FALSE(this->first_->component("member"));
    this->first_->setSource(nullptr);
    this->first_->setContainerValue(nullptr);
    EXPECT_TRUE(this->valueOf(this->first_) == Sample<TypeParam>::first());
}

TYPED_TEST(Value, ShowsItsTimeStampWhichStartsWithThePresentTime) {
    Nucleo::Ageable::GlobalTime.fetch_add(1);
    Nucleo::Ageable::Stamp const before = Nucleo::Ageable::now();
    StrongPtr<VValue<TypeParam>, VValueBase> const fresh = new VValue<TypeParam>;
    EXPECT_EQ(fresh->age(), before);
    EXPECT_EQ(Nucleo::Ageable::now(), before) << "without an increment";
    VValueBase& base = *fresh;
    EXPECT_EQ(base.ageable(), static_cast<Nucleo::Ageable*>(fresh.get()));
    EXPECT_EQ(static_cast<VValueBase const&>(base).ageable(), base.ageable());
}

TYPED_TEST(Value, NamesItsCreatorOfWhichThereIsOne) {
    auto const creator = this->first_->creator();
    EXPECT_EQ(creator.get(), &TypedValueCreator<TypeParam>::theCreator());
    EXPECT_EQ(this->second_->creator().get(), creator.get());
}

TYPED_TEST(Value, CountsItsDeathInItsTypesCreator) {
    unsigned const before = TypedValueCreator<TypeParam>::destroyedValues;
    { VValue<TypeParam> const shortLived; }
    EXPECT_EQ(TypedValueCreator<TypeParam>::destroyedValues, before + 1);
}

TYPED_TEST(Value, MakesChunksAndExchangesElementsWithThem) {
    auto const chunk = this->first_->makeChunk(2);
    ASSERT_TRUE(chunk);
    EXPECT_EQ(chunk->size(), 2u);
    EXPECT_EQ(chunk->elementType(), typeid(TypeParam));
    EXPECT_TRUE(this->first_->exchangeWithChunk(chunk.get(), 1, 1));
    EXPECT_TRUE(this->second_->exchangeWithChunk(chunk.get(), 1, 0));
    EXPECT_FALSE(this->second_->differs(this->first_));
    EXPECT_FALSE(this->second_->exchangeWithChunk(chunk.get(), 2, 0)) << "no such element";
    EXPECT_FALSE(this->second_->exchangeWithChunk(nullptr, 0, 0));
    Nucleo::StrongPtr<Nucleo::Chunk<char>, Nucleo::ChunkBase> const other =
        new Nucleo::Chunk<char>(1);
    EXPECT_FALSE(this->second_->exchangeWithChunk(other.get(), 0, 0)) << "another element type";
}

TYPED_TEST(Value, IsMadeFromTextByItsCreator) {
    TypedValueCreator<TypeParam> const& creator = TypedValueCreator<TypeParam>::theCreator();
    bool ok = false;
    ValuePtr const good = creator.create(Sample<TypeParam>::text(), ok);
    EXPECT_TRUE(ok);
    EXPECT_TRUE(this->valueOf(good) == Sample<TypeParam>::first());
    ValuePtr const bad = creator.create("--no such text--", ok);
    EXPECT_FALSE(ok);
    ASSERT_TRUE(bad) << "the value stands, with what it started with";
    EXPECT_EQ(bad->type(), typeid(TypeParam));
}

TEST(ValueCreatorOperations, StandInTheirOrder) {
    EXPECT_EQ(virtualSlot(&VValueCreator::finalUnction), 1u);
    EXPECT_EQ(virtualSlot(&VValueCreator::create), 4u);
}

}  // namespace
}  // namespace tests
