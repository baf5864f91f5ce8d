/// The parameters: their texts, what is advised, and what they may be set to.
#include <new>
#include <set>
#include <stdexcept>

#include "host/values/TypedSlot.hpp"
#include "workbench/session/typeNames.hpp"
#include "workbench/validate/Host.hpp"
#include "workbench/validate/colours.hpp"
#include "workbench/validate/texts.hpp"

namespace workbench::validate {

namespace {

using namespace Orlo;

/// Works with each parameter of each entry; what goes wrong is told with their names.
void withParameters(Trial const& trial,
                    std::function<void(VParameter const& parameter)> const& work) {
    withEntries(trial, [&](WeakCreatorPtr const& entry) {
        ObjectPtr const object = create(entry);
        for (SlotPtr const& slot : inputsOf(*object))
            inOwnWords("parameter " + inQuotes(slot->name()), [&] {
                require(bool(slot->ownParameter()), "the slot has no parameter");
                work(*slot->ownParameter());
            });
    });
}

/// Looks at the names of an object's parameters, and gives how many there are.
std::size_t lookAtNames(VObject const& object) {
    std::vector<SlotPtr> const slots = inputsOf(object);
    for (SlotPtr const& slot : slots) {
        std::string const& name = slot->name();
        require(!name.empty(), "a parameter has no name");
        require(isUtf8(name) && name == printable(name),
                "a parameter's name is no readable text: " + inQuotes(name));
        require(slot->ownParameter()->localName() == name,
                "the parameter " + inQuotes(name) + " calls itself " +
                    inQuotes(slot->ownParameter()->localName()));
    }
    return slots.size();
}

void names(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        // The second of two that have one name has taken the place of the first, which
        // the object shows no more and which dies with it all the same.
        unsigned const before = TypedSlotCreator::InternalTypeCreatorAccessory;
        std::size_t const shown = lookAtNames(*create(entry));
        unsigned const made = TypedSlotCreator::InternalTypeCreatorAccessory - before;
        require(made <= shown, "an object makes " + std::to_string(made) + " parameters and has " +
                                   std::to_string(shown) + ": two of them have one name");
    });
}

/// Writes a value and reads it again, where another one stood before.
void requireRoundTrip(ValuePtr const& value, ValuePtr const& again) {
    std::string const text = value->text();
    require(isUtf8(text), "a value is written as what is no UTF-8");
    require(again->setFromText(text),
            "the text of a value, " + inQuotes(text) + ", is not read back");
    require(again->text() == text, "a value is written as " + inQuotes(text) +
                                       ", and read back as " + inQuotes(again->text()));
    bool const equalsItself = !value->copy()->differs(value);  // not so NaN
    require(!equalsItself || !again->differs(value),
            "the text of a value, " + inQuotes(text) + ", means another value");
}

void defaults(Trial& trial) {
    withParameters(trial, [](VParameter const& parameter) {
        ValuePtr const value = parameter.DefaultValue();
        require(bool(value), "it has no default value");
        requireRoundTrip(value, parameter.copyOfDefault());
    });
}

void roundTrip(Trial& trial) {
    int const rounds = trial.times(50, 200, 5000);
    withParameters(trial, [&](VParameter const& parameter) {
        for (std::string const& text : textsAtTheEnds(parameter)) {
            ValuePtr const value = parameter.copyOfDefault();
            value->setFromText(text);
            requireRoundTrip(value, parameter.copyOfDefault());
        }
        for (int i = 0; i < rounds; ++i) {
            ValuePtr const value = parameter.copyOfDefault();
            value->setFromText(randomText(parameter, trial));
            requireRoundTrip(value, parameter.copyOfDefault());
            ValuePtr const copy = value->copy();
            require(copy && copy->text() == value->text() && copy->type() == value->type(),
                    "a copy of the value " + inQuotes(value->text()) + " is another one");
        }
    });
}

/// The value that an advised end means for the parameter; empty if there is none.
ValuePtr advised(VParameter const& parameter, std::string const& name) {
    std::string const text = advice(parameter, name);
    if (text.empty())
        return {};
    ValuePtr const value = parameter.copyOfDefault();
    require(value->setFromText(text), "its " + inQuotes(name) + " is " + inQuotes(text) +
                                          ", which is no value of its type " +
                                          typeName(value->type()));
    return value;
}

/// Whether one number is above another; false for what are no numbers.
bool isAbove(ValuePtr const& a, ValuePtr const& b) {
    auto const above = [&]<class T>(T) {
        StrongPtr<VTypedValueBase<T>, VValueBase> const left(a), right(b);
        T x{}, y{};
        return left && right && left->getValue(x) && right->getValue(y) && x > y;
    };
    return a && b && (above(double{}) || above(int{}));
}

void properties(Trial& trial) {
    withParameters(trial, [](VParameter const& parameter) {
        ValuePtr const min = advised(parameter, "min"), max = advised(parameter, "max");
        require(!isAbove(min, max), "its min " + advice(parameter, "min") + " is above its max " +
                                        advice(parameter, "max"));
        ValuePtr const value = parameter.DefaultValue();
        require(!isAbove(min, value) && !isAbove(value, max),
                "its default " + inQuotes(value->text()) + " is outside of what is advised");
    });
}

/// What has been set, for a message: "a=1, b=2".
std::string toldOf(std::vector<std::pair<std::string, std::string>> const& settings) {
    std::string text;
    for (auto const& [name, value] : settings)
        text += (text.empty() ? "" : ", ") + printable(name) + "=" + printable(value);
    return inQuotes(text, 300);
}

/// Updates an object whatever it was set to, and looks colours up. An update may end
/// for want of memory, or by `std::length_error` for a count that no vector can have.
void useOf(VObject& object, PoolPtr const& pool) {
    static std::vector<double> const scalars = scalarsTo(257);
    try {
        forceUpdate(object, pool);
    } catch (std::bad_alloc const&) {
    } catch (std::length_error const&) {
    }
    ColormapPtr const map = mapOf(object, pool);
    if (!map)
        return;
    std::string const change = difference(*map, scalars, coloursOf(*map, scalars));
    require(change.empty(), change);
}

void randomSettings(Trial& trial) {
    int const rounds = trial.times(50, 50, 1000);
    withMaps(trial, [&](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        for (int i = 0; i < rounds; ++i) {
            std::vector<std::pair<std::string, std::string>> settings;
            for (SlotPtr const& slot : inputsOf(*object)) {
                settings.emplace_back(slot->name(), randomText(*slot->ownParameter(), trial));
                setParameter(*object, settings.back().first, settings.back().second);
            }
            inOwnWords("with " + toldOf(settings), [&] { useOf(*object, pool); });
        }
    });
}

void atTheEnds(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        for (SlotPtr const& slot : inputsOf(*object)) {
            for (std::string const& text : textsAtTheEnds(*slot->ownParameter())) {
                setParameter(*object, slot->name(), text);
                inOwnWords("with " + toldOf({{slot->name(), text}}), [&] { useOf(*object, pool); });
            }
            setParameter(*object, slot->name(), slot->ownParameter()->DefaultValue()->text());
        }
    });
}

void wrongTexts(Trial& trial) {
    std::set<std::string> seen;  // of one type and one default, one is as good as all
    withParameters(trial, [&](VParameter const& parameter) {
        ValuePtr const value = parameter.copyOfDefault();
        std::string const right = value->text();
        if (!seen.insert(value->type().name() + right).second)
            return;
        for (std::string const& text : hostileTexts(right, trial)) {
            std::string const before = value->text();
            ValuePtr const again = value->copy();
            if (value->setFromText(text))
                requireRoundTrip(value, again);
            else
                require(value->text() == before,
                        "the text " + inQuotes(text) + " is refused, and has made " +
                            inQuotes(before) + " " + inQuotes(value->text()));
        }
    });
}

void ownPool(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        for (SlotPtr const& slot : inputsOf(*object)) {
            VParameter const& parameter = *slot->ownParameter();
            std::string const other = otherText(parameter);
            if (other.empty() || !parameter.keepsLocalValues())
                continue;
            PoolPtr const one = newPool(), two = newPool();
            std::string const before = valueInPool(parameter, two, false)->text();
            setParameter(*object, slot->name(), other, one);
            require(
                valueInPool(parameter, one, false)->text() != before,
                "parameter " + inQuotes(slot->name()) + ": a value set in one pool is not there");
            require(valueInPool(parameter, two, false)->text() == before,
                    "parameter " + inQuotes(slot->name()) +
                        ": a value set in one pool is seen in another");
        }
    });
}

}  // namespace

std::vector<Test> parameterTests() {
    return {
        {"parameters/names",
         "The parameters of an object have readable names, each its own.",
         {"catalogue/creates"},
         names},
        {"parameters/defaults",
         "The text of a default value reads back to that value.",
         {"catalogue/creates"},
         defaults},
        {"parameters/round-trip",
         "Any value that a text means is written, and read back the same.",
         {"parameters/defaults"},
         roundTrip},
        {"parameters/properties",
         "The advised min and max are values of the parameter's type, and its default lies between "
         "them.",
         {"parameters/defaults"},
         properties},
        {"parameters/wrong-texts",
         "A text that means no value leaves the old one: the empty one, a megabyte, random bytes, "
         "too much and too little.",
         {"parameters/defaults"},
         wrongTexts},
        {"parameters/pools",
         "A value that is set in one pool is seen in no other.",
         {"parameters/defaults"},
         ownPool},
        {"parameters/random-settings",
         "Whatever its parameters are set to, an object updates, and its map answers.",
         {"map/same-twice"},
         randomSettings,
         120},
        {"parameters/at-the-ends",
         "That holds for the ends of what is advised, and for zero, huge numbers and NaN.",
         {"map/same-twice"},
         atTheEnds,
         120},
    };
}

}  // namespace workbench::validate
