/// What each creator passes on, and what a fresh object has.
#include <gmock/gmock.h>

#include "host/pointers/Typename.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "runtime/vellum/ColormapValue.hpp"
#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

using namespace Orlo;

class Creator : public PluginTest, public testing::WithParamInterface<MapDescription> {
protected:
    VCreatorBase const& creator() const { return *findCreator(GetParam().key()); }
    CreatorRow const& row() const { return GetParam().creator; }
};

TEST_P(Creator, HasTheOrderNumberAndIsNotHidden) {
    EXPECT_EQ(creator().orderNumber(), row().order);
    EXPECT_FALSE(creator().isHidden());
}

TEST_P(Creator, HasThePreferencesOrNone) {
    PreferencesPtr const& preferences = creator().preferences();
    ASSERT_EQ(bool(preferences), !row().preferences.empty());
    if (preferences) {
        EXPECT_THAT(preferences->words(), testing::ElementsAreArray(row().preferences));
    }
}

TEST_P(Creator, HasTheProperties) {
    VCreatorBase const& entry = creator();
    EXPECT_EQ(entry.get(VCreatorPropertyElements::Category), row().category);
    EXPECT_EQ(entry.get(VCreatorPropertyElements::Name), GetParam().name);
    EXPECT_EQ(entry.get(VCreatorPropertyElements::Description), row().description);
    EXPECT_EQ(entry.get(VCreatorPropertyElements::Todo), row().todo);
    EXPECT_EQ(entry.get(VCreatorPropertyElements::Tags), row().tags);
    EXPECT_EQ(entry.get(VCreatorPropertyElements::Source), row().source);
    EXPECT_EQ(entry.get(VCreatorPropertyElements::Date), row().date);
}

TEST_P(Creator, IsASourceOfColourMaps) {
    auto const sources = inputCreators(typeid(ColormapPtr));
    auto const mine = [&](WeakInputCreatorPtr const& each) {
        return each.controlBlock() == creator().controlBlock();
    };
    EXPECT_EQ(std::ranges::count_if(sources, mine), 1);
}

TEST_P(Creator, MakesAnObjectWithItsOwnNameUnlessGivenOne) {
    EXPECT_EQ(create(GetParam().key())->Name(), GetParam().name);
    EXPECT_EQ(create(GetParam().key(), "Mine")->Name(), "Mine");
}

TEST_P(Creator, MakesObjectsThatKnowIt) {
    ObjectPtr const object = create(GetParam().key());
    EXPECT_EQ(object->creator().get(), &creator());
    EXPECT_EQ(object->type_key(), GetParam().key());
    EXPECT_EQ(object->domain(), typeid(VObject));
    EXPECT_EQ(creator().domain(), typeid(VInputCreatorBase));
    EXPECT_FALSE(object->owner());
    EXPECT_FALSE(creator().owner());
}

TEST_P(Creator, PassesItsPreferencesUnchangedWhenGivenNone) {
    ObjectPtr const object = create(GetParam().key());
    EXPECT_EQ(object->preferences().get(), creator().preferences().get());
}

TEST_P(Creator, UnitesItsPreferencesWithThoseGiven) {
    PreferencesPtr const given = new VCreationPreferences("local");
    ObjectPtr const object = create(GetParam().key(), "", given);
    std::vector<std::string> expected = row().preferences;
    expected.emplace_back("local");
    EXPECT_THAT(object->preferences()->words(), testing::UnorderedElementsAreArray(expected));
    EXPECT_EQ(given->words().size(), 1u) << "the given set is copied, not extended";
    if (row().preferences.empty()) {
        EXPECT_EQ(object->preferences().get(), given.get()) << "no union with nothing";
    }
}

/// Whether an object is made with the second pair of default colours, which is
/// asked of the united words.
struct WordRow {
    std::string entry, given;
    bool second;
};

class WordGiven : public PluginTest, public testing::WithParamInterface<WordRow> {};

TEST_P(WordGiven, ChoosesTheDefaultsTogetherWithTheEntrysOwn) {
    WordRow const& row = GetParam();
    ObjectPtr const object =
        create("Colormaps/" + row.entry, "", new VCreationPreferences(row.given));
    EXPECT_EQ(object->slot("startcolor")->parameter()->DefaultValue()->text(),
              row.second ? "(0.99215686,0.8156863,0.13725491,1)" : "(1,0,0,1)");
    EXPECT_EQ(object->slot("endcolor")->parameter()->DefaultValue()->text(),
              row.second ? "(0.27450982,0.11372549,0.4862745,1)" : "(0,1,0,1)");
}

INSTANTIATE_TEST_SUITE_P(
    Words, WordGiven,
    testing::Values(WordRow{"RedGreen", "muv", true}, WordRow{"RedGreen", "ort", false},
                    WordRow{"RedGreen", "Muv", false}, WordRow{"Muv", "redgreen", true},
                    WordRow{"LogRedGreen", "ort", true}, WordRow{"LogRedGreen", "muv", false},
                    WordRow{"Ort", "redgreen", true}),
    [](auto const& row) { return row.param.entry + "_with_" + row.param.given; });

TEST_P(Creator, NamesChildrenAfterTheirParent) {
    EXPECT_EQ(creator().createChildname("Slice"), GetParam().name + "_for_Slice");
    EXPECT_EQ(creator().createChildname(""), GetParam().name);
}

TEST_P(Creator, AcceptsNoDeadObject) {
    EXPECT_TRUE(creator().accept(nullptr).empty());
    ObjectPtr const object = create(GetParam().key());
    EXPECT_EQ(creator().accept(object).size(), GetParam().parameters.size());
}

class FreshObject : public Creator {};

TEST_P(FreshObject, HasTheOutputColormapAndNoOther) {
    ObjectPtr const object = create(GetParam().key());
    std::vector<std::string> outputs;
    object->iterateOutputs([&](SlotPtr const& slot) {
        outputs.push_back(slot->name());
        EXPECT_EQ(slot->parameter()->DefaultValue()->type(), typeid(ColormapPtr));
    });
    EXPECT_THAT(outputs, testing::ElementsAre("colormap"));
    EXPECT_EQ(tincture(*object).output().get(), object->slot("colormap")->parameter().get());
    EXPECT_TRUE(tincture(*object).output()->keepsLocalValues());
}

TEST_P(FreshObject, HasNoMapAndNoIcon) {
    ObjectPtr const object = create(GetParam().key());
    EXPECT_FALSE(mapOf(*object, makePool()));
    EXPECT_EQ(tincture(*object).iconCount(), 0u);
    EXPECT_EQ(object->xpm_icon(), "");
}

TEST_P(FreshObject, ShowsItsMapToEverybody) {
    ObjectPtr const object = create(GetParam().key());
    EXPECT_EQ(object->slot("colormap")->expertLevel(), 0);
}

TEST_P(FreshObject, HasTheParametersInTheirOrder) {
    ObjectPtr const object = create(GetParam().key());
    auto const found = inputs(*object);
    auto const& expected = GetParam().parameters;
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        SCOPED_TRACE(expected[i].name);
        VParameter const& parameter = *found[i]->parameter();
        EXPECT_EQ(found[i]->name(), expected[i].name);
        EXPECT_EQ(Nucleo::Typename(parameter.DefaultValue()->type()), expected[i].type);
        EXPECT_EQ(parameter.DefaultValue()->text(), expected[i].defaultText);
        EXPECT_EQ(parameter.ownValue()->text(), expected[i].defaultText);
        EXPECT_EQ(found[i]->expertLevel(), expected[i].expertLevel);
        EXPECT_EQ(parameter.flags & VParameter::Computed, 0u);
    }
}

TEST_P(FreshObject, HasTheProperties) {
    ObjectPtr const object = create(GetParam().key());
    for (ParameterRow const& row : GetParam().parameters) {
        SCOPED_TRACE(row.name);
        ValueMap const* const properties = object->slot(row.name)->parameter()->properties();
        ASSERT_EQ(properties == nullptr ? 0 : properties->entries().size(), row.properties.size());
        for (Setting const& property : row.properties) {
            ValuePtr const value = properties->getValue(property.name);
            ASSERT_TRUE(value) << property.name;
            EXPECT_EQ(value->text(), property.text) << property.name;
        }
    }
}

std::string nameOf(testing::TestParamInfo<MapDescription> const& map) {
    return testName(map.param.name);
}

INSTANTIATE_TEST_SUITE_P(Maps, Creator, testing::ValuesIn(describedMaps()), nameOf);
INSTANTIATE_TEST_SUITE_P(Maps, FreshObject, testing::ValuesIn(describedMaps()), nameOf);

}  // namespace
}  // namespace tests
