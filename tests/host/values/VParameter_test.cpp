/// Parameters, pools, and the rules of reading.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <vector>

#include "host/values/VValueParameter.hpp"
#include "runtime/lattice/Diagnostics.hpp"
#include "tests/host/values/sixTypes.hpp"
#include "tests/support/DiagnosticText.hpp"
#include "tests/support/RecordingSpeaker.hpp"
#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using namespace Orlo;
using Nucleo::Ageable;

template <class T>
using Typed = StrongPtr<VValue<T>, VValueBase>;
using Double = Typed<double>;

StrongPtr<VValueParameter<double>, ValueNotifierList> doubleParameter(double initial) {
    Double const value = new VValue<double>(initial);
    return new VValueParameter<double>(value, "width");
}

PoolPtr pool() {
    return new ValuePool;
}

double numberIn(ValuePtr const& value) {
    double number = -99;
    Double(value)->getValue(number);
    return number;
}

TEST(AParameterThatNoObjectOwns, HasANameOfItsOwnWithItsShortOneBehindADot) {
    auto const one = doubleParameter(1), other = doubleParameter(1);
    EXPECT_TRUE(one->Name().starts_with("unbound")) << one->Name();
    EXPECT_TRUE(one->Name().ends_with(".width")) << one->Name();
    EXPECT_EQ(std::ranges::count(one->Name(), '.'), 1);
    EXPECT_TRUE(std::isdigit(*(one->Name().end() - 7))) << one->Name();
    EXPECT_NE(one->Name(), other->Name());
}

TEST(ParameterOperations, StandInTheirOrder) {
    EXPECT_EQ(virtualSlot(&VParameter::finalUnction), 1u);
    EXPECT_EQ(virtualSlot(&VParameter::touch), 4u);
    EXPECT_EQ(virtualSlot(&ValueNotifierList::touch), 4u);
    EXPECT_EQ(virtualSlot(&VParameter::DefaultValue), 5u);
    EXPECT_EQ(virtualSlot(&VParameter::copy), 6u);
    EXPECT_EQ(virtualSlot(&VParameter::poolVariable), 7u);
    EXPECT_EQ(virtualSlot(&VParameter::setGlobalValue), 8u);
    EXPECT_EQ(virtualSlot(&VParameter::copyOfDefault), 9u);
    static_assert(std::is_base_of_v<ValueNotifierList, VParameter>);
    static_assert(std::is_base_of_v<Nucleo::Intercube, VParameter>);
}

template <class T>
class Parameter : public testing::Test {
protected:
    Typed<T> const standard_ = new VValue<T>(Sample<T>::first());
    ParameterPtr const parameter_ = new VValueParameter<T>(standard_, "width");
};
TYPED_TEST_SUITE(Parameter, SixTypes, SixNames);

TYPED_TEST(Parameter, KeepsTheValueItWasMadeWithAsItsDefault) {
    EXPECT_EQ(this->parameter_->DefaultValue().get(), this->standard_.get());
    EXPECT_EQ(this->parameter_->localName(), "width");
    EXPECT_FALSE(this->parameter_->preferences());
    EXPECT_FALSE(this->parameter_->ownValue()->differs(this->standard_));
    EXPECT_NE(this->parameter_->ownValue().get(), this->standard_.get());
}

TYPED_TEST(Parameter, GivesCopiesOfItsDefault) {
    ValuePtr const copy = this->parameter_->copyOfDefault();
    EXPECT_NE(copy.get(), this->standard_.get());
    EXPECT_FALSE(copy->differs(this->standard_));
}

TYPED_TEST(Parameter, CopiedHasTheSameNameAndDefault) {
    ParameterPtr const copy = this->parameter_->copy();
    EXPECT_NE(copy.get(), this->parameter_.get());
    EXPECT_EQ(copy->localName(), "width");
    EXPECT_FALSE(copy->DefaultValue()->differs(this->standard_));
}

TYPED_TEST(Parameter, MakesItsPoolVariableOnceFromTheDefault) {
    PoolPtr const values = pool();
    ValuePtr const made = this->parameter_->poolVariable(values);
    ASSERT_TRUE(made);
    EXPECT_FALSE(made->differs(this->standard_));
    EXPECT_NE(made.get(), this->standard_.get());
    EXPECT_EQ(this->parameter_->poolVariable(values).get(), made.get());
    EXPECT_EQ(values->retrieveValue(this->parameter_->Name()).get(), made.get());
    EXPECT_EQ(values->size(), 1u);
    EXPECT_EQ(this->parameter_->shadows().size(), 1u) << "the parameter remembers the pool";
}

TYPED_TEST(Parameter, HasNoPoolVariableWithoutAPool) {
    EXPECT_FALSE(this->parameter_->poolVariable(nullptr));
    EXPECT_FALSE(this->parameter_->getLocalValue(nullptr, "", true));
}

TYPED_TEST(Parameter, SetGloballyTakesTheValueAndSaysSoAtVerbosity50) {
    Typed<TypeParam> const source = new VValue<TypeParam>(Sample<TypeParam>::second());
    DiagnosticText const at49(49);
    EXPECT_TRUE(this->parameter_->setGlobalValue(source, nullptr));
    EXPECT_EQ(at49.text(), "");
    DiagnosticText const at50(50);
    EXPECT_TRUE(this->parameter_->setGlobalValue(source, nullptr));
    EXPECT_EQ(at50.text(),
              "VParameter::setGlobalValue() got variable with " + source->text() + "\n");
    EXPECT_FALSE(this->parameter_->ownValue()->differs(source));
    EXPECT_TRUE(this->parameter_->DefaultValue()->differs(source)) << "the default stays";
}

TEST(GlobalSet, StampsTheOwnValueWithThePresentTimeWithoutAdvancingIt) {
    auto const parameter = doubleParameter(1);
    Ageable::GlobalTime.fetch_add(3);
    Ageable::Stamp const before = Ageable::now();
    parameter->setGlobalValue(new VValue<double>(2), nullptr);
    EXPECT_EQ(parameter->ownValue()->ageable()->age(), before);
    EXPECT_EQ(Ageable::now(), before);
}

TEST(GlobalSet, StampsThePoolsValueInsteadWhereThereIsOne) {
    auto const parameter = doubleParameter(1);
    PoolPtr const values = pool();
    ValuePtr const local = parameter->poolVariable(values);
    Ageable::Stamp const ownBefore = parameter->ownValue()->ageable()->age();
    Ageable::GlobalTime.fetch_add(3);
    parameter->setGlobalValue(new VValue<double>(2), values);
    EXPECT_EQ(local->ageable()->age(), Ageable::now());
    EXPECT_EQ(parameter->ownValue()->ageable()->age(), ownBefore);
    EXPECT_EQ(numberIn(parameter->ownValue()), 2);
    EXPECT_EQ(numberIn(local), 1) << "the pool keeps its own value";
}

TEST(GlobalSet, MakesNoValueInThePool) {
    auto const parameter = doubleParameter(1);
    PoolPtr const values = pool();
    parameter->setGlobalValue(new VValue<double>(2), values);
    EXPECT_EQ(values->size(), 0u);
}

TEST(GlobalSet, OfAnotherTypeChangesNoValueButIsSaidStampedAndTaken) {
    auto const parameter = doubleParameter(1);
    Ageable::GlobalTime.fetch_add(3);
    DiagnosticText const text(50);
    EXPECT_TRUE(parameter->setGlobalValue(new VValue<int>(2), nullptr));
    EXPECT_EQ(text.text(), "VParameter::setGlobalValue() got variable with 1\n");
    EXPECT_EQ(numberIn(parameter->ownValue()), 1);
    EXPECT_EQ(parameter->ownValue()->ageable()->age(), Ageable::now());
}

TEST(GlobalSet, OfNothingOrWithoutAnOwnValueIsRefused) {
    DiagnosticText const text(50);
    EXPECT_FALSE(doubleParameter(1)->setGlobalValue(nullptr, nullptr));
    VValueParameter<double> empty(Double(), "nothing");
    EXPECT_FALSE(empty.setGlobalValue(new VValue<double>(2), nullptr));
    EXPECT_EQ(text.text(), "");
}

TEST(GlobalSet, OfAChoiceToItsOwnValueIsNoMisuseOfPointers) {
    RecordingSpeaker const speaker;
    StrongPtr<VValue<Enum>, VValueBase> const standard =
        new VValue<Enum>(Enum().addCase("no").addCase("yes"));
    ParameterPtr const parameter = new VValueParameter<Enum>(standard, "choice");
    EXPECT_TRUE(parameter->setGlobalValue(parameter->ownValue(), nullptr));
    EXPECT_EQ(parameter->ownValue()->text(), "no{no}{yes}");
    EXPECT_TRUE(speaker.reports.empty());
}

TEST(ParameterTouch, AdvancesTheTimeAndStampsTheOwnValue) {
    auto const parameter = doubleParameter(1);
    Ageable::Stamp const before = Ageable::now();
    static_cast<ValueNotifierList&>(*parameter).touch();
    EXPECT_EQ(Ageable::now(), before + 1);
    EXPECT_EQ(parameter->ownValue()->ageable()->age(), before + 1);
}

TEST(ParameterName, IsUniqueForEachParameter) {
    auto const first = doubleParameter(1);
    auto const second = doubleParameter(1);
    EXPECT_NE(first->Name(), second->Name());
    EXPECT_EQ(first->localName(), second->localName());
}

TEST(ParameterCopy, RemembersThePoolsOfTheFormer) {
    auto const parameter = doubleParameter(1);
    PoolPtr const place = pool();
    parameter->poolVariable(place);
    ParameterPtr const twin = parameter->copy();
    ASSERT_EQ(twin->shadows().size(), 1u);
    EXPECT_EQ(twin->shadows().front().get(), place.get());
}

TEST(DyingParameter, TakesItsValuesOutOfAllPools) {
    PoolPtr const values = pool();
    {
        auto const parameter = doubleParameter(1);
        parameter->poolVariable(values);
        EXPECT_EQ(values->size(), 1u);
    }
    EXPECT_EQ(values->size(), 0u);
}

// --- Reading

class Reading : public testing::Test {
protected:
    double read() const {
        double target = -1;
        found_ = readParameter(*parameter_, pool_, target);
        return target;
    }

    StrongPtr<VValueParameter<double>, ValueNotifierList> parameter_ = doubleParameter(1);
    PoolPtr pool_ = pool();
    mutable bool found_ = false;
};

TEST_F(Reading, OfAMarkedParameterTakesThePoolsValue) {
    Double(parameter_->poolVariable(pool_))->setValue(5);
    EXPECT_EQ(read(), 5);
    EXPECT_TRUE(found_);
}

TEST_F(Reading, WithoutAValueInThePoolTakesTheParametersOwnAndMakesNone) {
    EXPECT_EQ(read(), 1);
    EXPECT_EQ(pool_->size(), 0u);
}

TEST_F(Reading, OfAnUnmarkedParameterPassesThePoolBy) {
    Double(parameter_->poolVariable(pool_))->setValue(5);
    parameter_->flags &= ~static_cast<unsigned>(VParameter::KeepsLocalValues);
    EXPECT_EQ(read(), 1);
}

TEST_F(Reading, WithTheCreateFlagMakesThePoolsValue) {
    ValuePtr const made = valueInPool(*parameter_, pool_, true);
    EXPECT_EQ(pool_->size(), 1u);
    EXPECT_NE(made.get(), parameter_->ownValue().get());
    parameter_->flags &= ~static_cast<unsigned>(VParameter::KeepsLocalValues);
    EXPECT_EQ(valueInPool(*parameter_, pool_, true).get(), parameter_->ownValue().get());
}

TEST_F(Reading, WithoutAPoolTakesTheParametersOwnValue) {
    pool_ = nullptr;
    EXPECT_EQ(read(), 1);
}

TEST_F(Reading, OfNoValueLeavesTheTarget) {
    parameter_ = new VValueParameter<double>(Double(), "nothing");
    EXPECT_EQ(read(), -1);
    EXPECT_FALSE(found_);
}

TEST_F(Reading, WithAFailedCastLeavesTheTarget) {
    pool_->createVariable(*parameter_, new VValue<int>(5));
    EXPECT_EQ(read(), -1) << "a value of another type stands in the pool";
    EXPECT_FALSE(found_);
    std::string text = "before";
    EXPECT_FALSE(readParameter(*parameter_, nullptr, text));
    EXPECT_EQ(text, "before");
}

/// A value that is taken out of its pool while it is read.
class LeavingValue : public VValue<double> {
public:
    using VValue<double>::VValue;
    bool getValue(double& target) const override {
        leave();
        aliveAfterwards = controlBlock()->alive();
        return VValue<double>::getValue(target);
    }
    std::function<void()> leave;
    static inline bool aliveAfterwards = false;
};

TEST_F(Reading, HoldsTheValueMeanwhile) {
    StrongPtr<LeavingValue, VValueBase> value = new LeavingValue(5);
    value->leave = [this] { pool_->eraseVariable(parameter_->Name()); };
    pool_->createVariable(*parameter_, value);
    value = nullptr;
    EXPECT_EQ(read(), 5);
    EXPECT_TRUE(LeavingValue::aliveAfterwards);
}

TEST_F(Reading, OfAMemberThatDoesNotExistFindsNothing) {
    parameter_->poolVariable(pool_);
    EXPECT_TRUE(parameter_->getLocalValue(pool_, "", false));
    EXPECT_FALSE(parameter_->getLocalValue(pool_, "member", false));
}

TEST(Pool, KeepsTheFirstValueOfAParameter) {
    auto const parameter = doubleParameter(1);
    PoolPtr const values = pool();
    ValuePtr const first = values->createVariable(*parameter, new VValue<double>(2));
    ValuePtr const second = values->createVariable(*parameter, new VValue<double>(3));
    EXPECT_EQ(first.get(), second.get());
    EXPECT_EQ(numberIn(second), 2);
    EXPECT_FALSE(values->retrieveValue("no such name"));
    values->eraseVariable(parameter->Name());
    values->eraseVariable(parameter->Name());
    EXPECT_EQ(values->size(), 0u);
}

// --- Notification

class Listener : public ValueNotifier {
public:
    void valueChanged(ValuePtr const& value, PoolPtr const&, std::string const& member) override {
        ++count;
        last = value;
        lastMember = member;
    }
    int count = 0;
    ValuePtr last;
    std::string lastMember = "none";
};
using ListenerPtr = StrongPtr<Listener, ValueNotifier>;

TEST(Notification, ReachesAllListenersButTheOneWhoCausedIt) {
    auto const parameter = doubleParameter(1);
    ListenerPtr const first = new Listener, second = new Listener;
    parameter->addNotifier(first);
    parameter->addNotifier(second);
    ValuePtr const value = parameter->ownValue();
    parameter->notifyValueChange(value, nullptr, "", first, nullptr, nullptr);
    EXPECT_EQ(first->count, 0);
    EXPECT_EQ(second->count, 1);
    EXPECT_EQ(second->last.get(), value.get());
    EXPECT_EQ(second->lastMember, "");
    parameter->notifyValueChange(value, nullptr, "", nullptr, nullptr, nullptr);
    EXPECT_EQ(first->count, 1);
    EXPECT_EQ(second->count, 2);
}

TEST(Notification, HoldsItsListenersWeaklyAndForgetsTheDeadOnes) {
    auto const parameter = doubleParameter(1);
    WeakPtr<Listener, ValueNotifier> first;
    for (int i = 0; i < 1000; ++i) {
        ListenerPtr const listener = new Listener;
        parameter->addNotifier(listener);
        if (i == 0)
            first = WeakPtr<Listener, ValueNotifier>(listener.get());
    }
    EXPECT_FALSE(first.alive());
    EXPECT_EQ(first.controlBlock()->weakNow(), 1) << "only this test still points to it";
    ListenerPtr const living = new Listener;
    parameter->addNotifier(living);
    parameter->notifyValueChange(nullptr, nullptr, "", nullptr, nullptr, nullptr);
    EXPECT_EQ(living->count, 1) << "the dead ones are passed by";
}

TEST(Notification, KeepsEveryLivingListener) {
    auto const parameter = doubleParameter(1);
    std::vector<ListenerPtr> all;
    for (int i = 0; i < 1000; ++i) {
        ListenerPtr const passing = new Listener;
        all.emplace_back(new Listener);
        parameter->addNotifier(all.back());
        parameter->addNotifier(passing);
    }
    parameter->notifyValueChange(nullptr, nullptr, "", nullptr, nullptr, nullptr);
    EXPECT_TRUE(std::ranges::all_of(all, [](ListenerPtr const& each) { return each->count == 1; }));
}

// --- Properties of a parameter

TEST(ParameterProperty, IsKeptByNameAndDoesNotTouchTheValue) {
    auto const parameter = doubleParameter(1);
    EXPECT_EQ(parameter->properties(), nullptr);
    ListenerPtr const listener = new Listener;
    parameter->addNotifier(listener);
    parameter->setProperty("min", new VValue<double>(5), nullptr, nullptr, nullptr);
    ASSERT_NE(parameter->properties(), nullptr);
    EXPECT_EQ(numberIn(parameter->properties()->getValue("min")), 5);
    EXPECT_FALSE(parameter->properties()->getValue("max"));
    EXPECT_EQ(numberIn(parameter->ownValue()), 1) << "no value is limited";
    EXPECT_EQ(listener->lastMember, "min");
}

}  // namespace
}  // namespace tests
