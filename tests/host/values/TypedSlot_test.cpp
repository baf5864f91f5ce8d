/// The slots of an object, the creators behind them, and their properties.
#include "host/values/TypedSlot.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/lattice/TypeRegistry.hpp"
#include "tests/host/object/Node.hpp"
#include "tests/host/values/sixTypes.hpp"
#include "tests/support/RecordingSpeaker.hpp"
#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using namespace Orlo;
using testing::internal::CaptureStderr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStderr;
using testing::internal::GetCapturedStdout;

/// Standard output or error without the carriage returns of Windows.
std::string lines(std::string text) {
    std::erase(text, '\r');
    return text;
}

// Before anything below registers a slot creator for it, this type has none.
struct Unregistered {
    bool operator==(Unregistered const&) const = default;
};

}  // namespace
}  // namespace tests

template <>
struct Orlo::VValueTrait<tests::Unregistered> {
    static bool setValueFromText(tests::Unregistered&, std::string const&) { return false; }
    static std::string Text(tests::Unregistered const&) { return "unregistered"; }
};

namespace tests {
namespace {

TEST(SlotOfATypeWithoutCreators, SaysSoWhenItDiesAndGoesOn) {
    CaptureStdout();
    {
        Node node;
        TypedSlot<Unregistered> const slot(&node, "odd", {}, 0);
    }
    EXPECT_EQ(lines(GetCapturedStdout()),
              "Typeslot has a problem, its creators were not registered!?\n");
}

template <class T>
class Slot : public testing::Test {
protected:
    static void SetUpTestSuite() { registerValueTypes<T>(); }

    std::string name() const { return Nucleo::Typename(typeid(T)); }
};
TYPED_TEST_SUITE(Slot, SixTypes, SixNames);

TYPED_TEST(Slot, StandsInItsObjectWithNameLevelAndInitialValue) {
    Node node;
    TypedSlot<TypeParam> const slot(&node, "width", Sample<TypeParam>::first(), 3);
    SlotPtr const found = node.slot("width");
    ASSERT_TRUE(found);
    EXPECT_EQ(found.get(), slot.slot().get());
    EXPECT_EQ(slot.name(), "width");
    EXPECT_TRUE(slot.initialValue() == Sample<TypeParam>::first());
    EXPECT_EQ(found->expertLevel(), 3);
    EXPECT_TRUE(found->isInput());
    EXPECT_EQ(found->parameter()->DefaultValue()->text(),
              VValueTrait<TypeParam>::Text(Sample<TypeParam>::first()));
    EXPECT_FALSE(found->parameter()->preferences());
}

TYPED_TEST(Slot, ClearsTheFlag8OfItsParameterAndNoOther) {
    Node node;
    TypedSlot<TypeParam> const slot(&node, "width", Sample<TypeParam>::first(), 0);
    StrongPtr<VValue<TypeParam>, VValueBase> const value = new VValue<TypeParam>;
    unsigned const untouched = VValueParameter<TypeParam>(value, "other").flags;
    EXPECT_EQ(untouched & 8u, 8u);
    EXPECT_EQ(slot.slot()->parameter()->flags, untouched & ~8u);
}

TYPED_TEST(Slot, BindsTheParameterToItsObject) {
    Node first, second;
    TypedSlot<TypeParam> const one(&first, "width", Sample<TypeParam>::first(), 0);
    TypedSlot<TypeParam> const two(&second, "width", Sample<TypeParam>::first(), 0);
    EXPECT_NE(one.slot()->parameter()->Name(), two.slot()->parameter()->Name());
    EXPECT_EQ(one.slot()->parameter()->localName(), "width");
}

TYPED_TEST(Slot, ReadsWhatHoldsInThePool) {
    Node node;
    TypedSlot<TypeParam> const slot(&node, "width", Sample<TypeParam>::first(), 0);
    PoolPtr const pool = new ValuePool, other = new ValuePool;
    StrongPtr<VTypedValueBase<TypeParam>, VValueBase>(slot.slot()->parameter()->poolVariable(pool))
        ->setValue(Sample<TypeParam>::second());
    TypeParam value{};
    EXPECT_TRUE(slot.read(pool, value));
    EXPECT_TRUE(value == Sample<TypeParam>::second());
    EXPECT_TRUE(slot.read(other, value));
    EXPECT_TRUE(value == Sample<TypeParam>::first());
}

TYPED_TEST(Slot, MadeWithoutAnObjectSaysSoOnceAndWorksByItself) {
    CaptureStderr();
    TypedSlot<TypeParam> const slot(nullptr, "alone", Sample<TypeParam>::first(), 1);
    EXPECT_EQ(lines(GetCapturedStderr()),
              "slot 'alone' of type " + this->name() + " is made without an object\n");
    ASSERT_TRUE(slot.slot());
    TypeParam value{};
    EXPECT_TRUE(slot.read(nullptr, value));
    EXPECT_TRUE(value == Sample<TypeParam>::first());
    EXPECT_EQ(slot.slot()->parameter()->flags & 8u, 0u);
}

TYPED_TEST(Slot, CountsItsDeathWhereItsCreatorIsRegistered) {
    Node node;
    unsigned const before = TypedSlotCreator::InternalTypeCreatorAccessory;
    CaptureStdout();
    { TypedSlot<TypeParam> const slot(&node, "width", Sample<TypeParam>::first(), 0); }
    EXPECT_EQ(GetCapturedStdout(), "");
    EXPECT_EQ(TypedSlotCreator::InternalTypeCreatorAccessory, before + 1);
}

TYPED_TEST(Slot, ReportsItsMakingUnderItsLabelWhileTracing) {
    Node node;
    RecordingSpeaker speaker;
    Tracing const on;
    TypedSlot<TypeParam> const slot(&node, "width", Sample<TypeParam>::first(), 0);
    auto const report = std::ranges::find(speaker.reports, "printRS", &PointerReport::what);
    ASSERT_NE(report, speaker.reports.end());
    EXPECT_EQ(report->label,
              "TypedSlot(VObject*that, const string&name, const T&initialValue, int expertLevel");
    EXPECT_EQ(*report->type, typeid(TypeParam));
}

TYPED_TEST(Slot, CanBeMadeByTheNameOfItsType) {
    auto const creator = findSlotCreator(this->name());
    ASSERT_TRUE(creator);
    StrongPtr<Node, VManagedObjectBase> const node = new Node;
    bool ok = false;
    SlotPtr const slot = creator->create(node.get(), "width", Sample<TypeParam>::text(), ok, 2);
    EXPECT_TRUE(ok);
    EXPECT_EQ(node->slot("width").get(), slot.get());
    EXPECT_EQ(slot->expertLevel(), 2);
    TypeParam value{};
    EXPECT_TRUE(readParameter(*slot->parameter(), nullptr, value));
    EXPECT_TRUE(value == Sample<TypeParam>::first());
}

TYPED_TEST(Slot, MadeByNameFromABadTextSaysSoAndStandsWithTheStartValue) {
    auto const creator = findSlotCreator(this->name());
    StrongPtr<Node, VManagedObjectBase> const node = new Node;
    bool ok = true;
    SlotPtr const slot = creator->create(node.get(), "width", "--no such text--", ok, 0);
    EXPECT_FALSE(ok);
    ASSERT_TRUE(slot);
    TypeParam value{};
    EXPECT_TRUE(readParameter(*slot->parameter(), nullptr, value));
    EXPECT_TRUE(value == TypeParam{});
}

TYPED_TEST(Slot, HasOneSlotCreatorAndOneValueCreatorForItsTypeHoweverOftenNeeded) {
    std::size_t const before = typeCreatorCount();
    registerValueTypes<TypeParam>();
    registerValueTypes<TypeParam, TypeParam>();
    EXPECT_EQ(typeCreatorCount(), before);
    EXPECT_EQ(findValueCreator(this->name()).get(), &TypedValueCreator<TypeParam>::theCreator());
    EXPECT_EQ(findSlotCreator(this->name()).get(),
              &TypedSlot<TypeParam>::SlotCreator::theCreator());
}

TEST(SlotCreatorOperations, StandInTheirOrder) {
    EXPECT_EQ(virtualSlot(&TypedSlotCreator::finalUnction), 1u);
    EXPECT_EQ(virtualSlot(&TypedSlotCreator::create), 4u);
}

// --- Properties

template <class T>
class SlotProperty : public testing::Test {};
using NumberTypes = testing::Types<double, int>;
TYPED_TEST_SUITE(SlotProperty, NumberTypes, );

TYPED_TEST(SlotProperty, IsMadeAtFirstAndSetInPlaceAfterwards) {
    Node node;
    TypedSlot<TypeParam> slot(&node, "width", Sample<TypeParam>::first(), 0);
    VParameter& parameter = *slot.slot()->parameter();
    slot.setProperty("min", TypeParam{1});
    ValuePtr const made = parameter.properties()->getValue("min");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->type(), typeid(TypeParam));
    EXPECT_EQ(made->text(), "1");
    slot.setProperty("min", TypeParam{2});
    slot.setProperty("max", TypeParam{9});
    EXPECT_EQ(parameter.properties()->getValue("min").get(), made.get());
    EXPECT_EQ(made->text(), "2");
    EXPECT_EQ(parameter.properties()->getValue("max")->text(), "9");
}

TEST(SlotProperty, OfAnotherTypeReplacesTheOneThatStands) {
    Node node;
    TypedSlot<double> slot(&node, "width", 5.0, 0);
    slot.setProperty("min", 1.0);
    slot.setProperty("min", 2);
    EXPECT_EQ(slot.slot()->parameter()->properties()->getValue("min")->type(), typeid(int));
}

TEST(SlotProperty, LimitsNoValue) {
    Node node;
    TypedSlot<double> slot(&node, "width", 5.0, 0);
    slot.setProperty("max", 1.0);
    double value = 0;
    EXPECT_TRUE(slot.read(nullptr, value));
    EXPECT_EQ(value, 5.0);
}

}  // namespace
}  // namespace tests
