#include "tests/threads/Alternation.hpp"

#include <algorithm>
#include <limits>
#include <map>
#include <stdexcept>
#include <typeindex>

#include "host/values/Enum.hpp"
#include "host/values/FlagList.hpp"
#include "host/values/Range.hpp"
#include "host/values/VTime.hpp"
#include "runtime/lattice/Catalogue.hpp"

namespace tests {

using namespace Orlo;

namespace {

/// Texts by type, of which at least one is another value than any default.
std::vector<std::string> const& otherTexts(std::type_info const& type) {
    static std::map<std::type_index, std::vector<std::string>> const texts{
        {typeid(double), {"0.25"}},
        {typeid(int), {"7"}},
        {typeid(Tessar::rgba_float_t), {"(0.25,0.5,0.75,0.5)"}},
        {typeid(FlagList), {"inverse"}},
        {typeid(Enum), {"yes", "D65", "Smooth"}},
        {typeid(Range), {"0.25,0.75"}},
        {typeid(VTime), {"0.5[0,1]@0.1"}},
    };
    return texts.at(type);
}

std::string otherText(VParameter const& parameter) {
    ValuePtr const standard = parameter.copyOfDefault();
    ValuePtr const other = parameter.copyOfDefault();
    for (std::string const& text : otherTexts(standard->type()))
        if (other->setFromText(text) && other->differs(standard))
            return text;
    throw std::logic_error("no other value for the parameter " + parameter.localName());
}

}  // namespace

std::vector<double> const& scalars() {
    static std::vector<double> const all = [] {
        std::vector<double> values{-3.0, 7.0, std::numeric_limits<double>::quiet_NaN()};
        for (int i = 0; i <= 32; ++i)
            values.push_back(i / 32.0);
        return values;
    }();
    return all;
}

Colours coloursOf(Colormap const& map) {
    Colours colours;
    colours.reserve(scalars().size());
    for (double const scalar : scalars())
        colours.push_back(map.getColor(scalar));
    return colours;
}

bool same(Colours const& a, Colours const& b) {
    auto const sameNumber = [](float x, float y) { return x == y || (x != x && y != y); };
    return std::ranges::equal(a, b, [&](auto const& x, auto const& y) {
        return sameNumber(x[0], y[0]) && sameNumber(x[1], y[1]) && sameNumber(x[2], y[2]) &&
               sameNumber(x[3], y[3]);
    });
}

Alternation::Alternation(VObject const& object) {
    for (SlotPtr const& slot : inputs(object)) {
        VParameter const& parameter = *slot->ownParameter();
        parameters_.push_back(
            {slot->name(), {parameter.copyOfDefault()->text(), otherText(parameter)}});
    }
}

void Alternation::set(VObject& object, unsigned state, PoolPtr const& pool) const {
    for (Parameter const& parameter : parameters_)
        tests::set(object, parameter.name, parameter.texts[state % 2], pool);
}

std::array<Colours, 2> coloursOfBothStates(std::string const& key) {
    ObjectPtr const object = create(key);
    Alternation const alternation(*object);
    PoolPtr const pool = makePool();
    std::array<Colours, 2> colours;
    for (unsigned state = 0; state < 2; ++state) {
        alternation.set(*object, state);
        colours[state] = coloursOf(*update(*object, pool));
    }
    return colours;
}

std::vector<std::string> keys() {
    std::vector<std::string> all;
    for (WeakCreatorPtr const& creator : catalogue())
        all.push_back(creator->keyname("/"));
    return all;
}

}  // namespace tests
