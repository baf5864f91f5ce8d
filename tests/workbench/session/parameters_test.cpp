#include "workbench/session/parameters.hpp"

#include <gtest/gtest.h>

#include "host/object/VObject.hpp"
#include "host/values/TypedSlot.hpp"
#include "workbench/common/errors.hpp"

namespace {

using namespace Orlo;
using workbench::setParameter;

/// An object with a parameter of each kind that the texts of a call can set.
class Subject : public VObject {
public:
    Subject() : VObject("subject", 0, nullptr) {
        StrongPtr<VValue<double>, VValueBase> const value = new VValue<double>(0.0);
        result = new VValueParameter<double>(value, "result");
        VSlotGlobals::addParameter(this, "result", 0, result, false);
    }
    bool update(VRequest&, double) override { return true; }

    TypedSlot<double> factor{this, "factor", 0.5, 0};
    TypedSlot<int> count{this, "count", 3, 1};
    TypedSlot<Enum> choice{this, "choice", Enum().addCase("one").addCase("two"), 0};
    TypedSlot<FlagList> options{this, "options", FlagList("-inverse", ' '), 0};
    TypedSlot<Range> range{this, "range", Range(0, 1), 0};
    TypedSlot<Tessar::rgba_float_t> color{this, "color", Tessar::rgba_float_t(1, 0, 0, 1), 0};
    ParameterPtr result;
};

/// Registers the value types before any object and for as long as all.
bool const valueTypes =
    registerValueTypes<double, int, Enum, FlagList, Range, Tessar::rgba_float_t>();

class Listener : public ValueNotifier {
public:
    void valueChanged(ValuePtr const& value, PoolPtr const& pool, std::string const&) override {
        texts.push_back(value->text());
        pools.push_back(pool);
    }
    std::vector<std::string> texts;
    std::vector<PoolPtr> pools;
};

class SetParameter : public ::testing::Test {
protected:
    std::string text(std::string const& name, PoolPtr const& pool = {}) const {
        return valueInPool(*object_->slot(name)->ownParameter(), pool, false)->text();
    }

    /// What the refusal says; empty if the call was taken.
    std::string refusal(std::string const& name, std::string const& value,
                        PoolPtr const& pool = {}) {
        try {
            setParameter(*object_, name, value, pool);
            return {};
        } catch (workbench::CallError const& error) {
            return error.what();
        }
    }

    StrongPtr<Subject, VManagedObjectBase> const object_ = new Subject;
};

TEST_F(SetParameter, TakesTheTextFormsOfAllTypes) {
    ASSERT_TRUE(valueTypes);
    struct {
        char const* name;
        char const* given;
        char const* expected;
    } const cases[] = {
        {"factor", "-2.5e-06", "-2.5e-06"}, {"count", "256", "256"},
        {"choice", "two", "two{one}{two}"}, {"options", " inverse", " inverse"},
        {"range", "-1,2", "-1,2"},          {"color", "(0.25,0.5,1,0)", "(0.25,0.5,1,0)"},
    };
    for (auto const& c : cases) {
        setParameter(*object_, c.name, c.given);
        EXPECT_EQ(text(c.name), c.expected) << c.name;
    }
}

TEST_F(SetParameter, TheDefaultStaysWhatItWas) {
    setParameter(*object_, "factor", "45");
    EXPECT_EQ(object_->slot("factor")->ownParameter()->DefaultValue()->text(), "0.5");
}

TEST_F(SetParameter, TwoChangesInARowHaveTwoAges) {
    setParameter(*object_, "factor", "1");
    auto const first = object_->slot("factor")->age(nullptr);
    setParameter(*object_, "factor", "2");
    EXPECT_GT(object_->slot("factor")->age(nullptr), first);
}

TEST_F(SetParameter, AValueForAContextHoldsThereAlone) {
    PoolPtr const one = new ValuePool("one");
    PoolPtr const other = new ValuePool("other");
    auto const before = object_->slot("factor")->age(one);
    setParameter(*object_, "factor", "7", one);
    EXPECT_EQ(text("factor", one), "7");
    EXPECT_EQ(text("factor", other), "0.5");
    EXPECT_EQ(text("factor"), "0.5");
    EXPECT_GT(object_->slot("factor")->age(one), before);
}

TEST_F(SetParameter, ListenersHearOfTheNewValueAndItsContext) {
    StrongPtr<Listener, ValueNotifier> const listener = new Listener;
    object_->slot("factor")->ownParameter()->addNotifier(
        WeakPtr<ValueNotifier, ValueNotifier>(listener));
    PoolPtr const pool = new ValuePool("pool");
    setParameter(*object_, "factor", "7");
    setParameter(*object_, "factor", "8", pool);
    EXPECT_EQ(listener->texts, (std::vector<std::string>{"7", "8"}));
    ASSERT_EQ(listener->pools.size(), 2U);
    EXPECT_FALSE(listener->pools[0]);
    EXPECT_TRUE(listener->pools[1] == pool);
}

TEST_F(SetParameter, AConnectedInputKeepsItsProviderAndTheValueWaits) {
    StrongPtr<Subject, VManagedObjectBase> const provider = new Subject;
    SlotPtr const slot = object_->slot("factor");
    ASSERT_TRUE(object_->connectSlots(slot, *provider, provider->slot("result")));
    setParameter(*object_, "factor", "9");
    EXPECT_EQ(valueInPool(*slot->parameter(), nullptr, false)->text(), "0");
    slot->disconnect();
    EXPECT_EQ(valueInPool(*slot->parameter(), nullptr, false)->text(), "9");
}

TEST_F(SetParameter, RefusalsNameTheCulpritAndTheRemedy) {
    struct {
        char const* name;
        char const* given;
        char const* expected;
    } const cases[] = {
        {"facto", "1", "'subject' has no parameter 'facto'; did you mean 'factor'?"},
        {"watermelon", "1",
         "'subject' has no parameter 'watermelon'; it has 'factor', 'count', 'choice', "
         "'options', 'range', 'color'"},
        {"result", "1", "the parameter 'result' of 'subject' is an output; it cannot be set"},
        {"factor", "1 ",
         "the text '1 ' is no value of the parameter 'factor' of type double; a right one is the "
         "present '0.5'"},
        {"count", "2.5",
         "the text '2.5' is no value of the parameter 'count' of type int; a right one is the "
         "present '3'"},
        {"choice", "three",
         "the text 'three' is no value of the parameter 'choice' of type Enum; a right one is the "
         "present 'one{one}{two}'"},
        {"options", "upward",
         "the text 'upward' is no value of the parameter 'options' of type FlagList; a right one "
         "is the present ' -inverse'"},
        {"range", "0",
         "the text '0' is no value of the parameter 'range' of type Range; a right one is the "
         "present '0,1'"},
        {"color", "red",
         "the text 'red' is no value of the parameter 'color' of type rgba_float_t; a right one is "
         "the present '(1,0,0,1)'"},
    };
    for (auto const& c : cases)
        EXPECT_EQ(refusal(c.name, c.given), c.expected);
}

TEST_F(SetParameter, ARefusedTextChangesNothing) {
    PoolPtr const pool = new ValuePool("pool");
    auto const now = Nucleo::Ageable::now();
    auto const age = object_->slot("factor")->age(nullptr);
    EXPECT_NE(refusal("factor", "many"), "");
    EXPECT_NE(refusal("factor", "many", pool), "");
    EXPECT_EQ(text("factor"), "0.5");
    EXPECT_EQ(object_->slot("factor")->age(nullptr), age);
    EXPECT_EQ(Nucleo::Ageable::now(), now);
    EXPECT_EQ(pool->size(), 0U);
}

TEST(ParameterNames, AreTheInputsInTheirOrder) {
    StrongPtr<Subject, VManagedObjectBase> const object = new Subject;
    EXPECT_EQ(workbench::parameterNames(*object),
              (std::vector<std::string>{"factor", "count", "choice", "options", "range", "color"}));
}

}  // namespace
