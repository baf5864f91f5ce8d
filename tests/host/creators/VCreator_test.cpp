/// Creators: construction, creation, and teardown, through entries of this
/// program's own.
#include <gmock/gmock.h>

#include <stdexcept>
#include <vector>

#include "host/creators/VSource.hpp"
#include "host/object/Tincture.hpp"
#include "host/values/TypedSlot.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "tests/support/DiagnosticText.hpp"
#include "tests/support/objects.hpp"
#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using namespace Orlo;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStdout;

/// What a test wants to know of the objects made.
struct Made {
    int born = 0;
    int died = 0;
    bool throws = false;
};
Made made;

class Tint : public Tincture {
public:
    Tint(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {
        EXPECT_EQ(kind, 0);
        if (made.throws)
            throw std::runtime_error("no");
        ++made.born;
    }
    ~Tint() override { ++made.died; }
    bool update(VRequest&, double) override { return true; }
};

using TintSource = VSource<Tint, ColormapPtr>;

VCreatorProperties properties(std::string const& name) {
    return VCreatorProperties(NameIs(name), CategoryIs("Tests"));
}

/// An entry "Tests/<name>" with the preference "own".
struct Entry : TintSource {
    explicit Entry(std::string const& name = "Tint",
                   PreferencesPtr const& preferences = new VCreationPreferences("own"))
        : TintSource(properties(name), 5, preferences, false, InterfaceToken) {}
};

class Creators : public testing::Test {
protected:
    void SetUp() override { made = {}; }
};

std::vector<std::string> keys() {
    std::vector<std::string> found;
    for (auto const& creator : catalogue())
        found.push_back(creator->keyname("/"));
    return found;
}

/// Hears warnings and creations.
class Listener : public VActionNotifier {
public:
    void warned(std::string const& text) override {
        warnings.push_back(text);
        if (throws)
            throw std::runtime_error("a listener fails");
    }
    void created(ObjectPtr const& object, Nucleo::Intercube const& context,
                 WeakPtr<VCreatorBase, VManagedObjectBase> const& creator) override {
        objects.push_back(object);
        contexts.push_back(&context);
        creators.push_back(creator);
    }

    std::vector<std::string> warnings;
    std::vector<WeakObjectPtr> objects;
    std::vector<Nucleo::Intercube const*> contexts;
    std::vector<WeakCreatorPtr> creators;
    bool throws = false;
};

// --- The classes

static_assert(
    std::is_base_of_v<Nucleo::Auto<VInputCreator<ColormapPtr, VCreator<Tint, void>>>, TintSource>);
static_assert(std::is_base_of_v<VCreatorBase, VCreator<Tint, void>>);
static_assert(std::is_base_of_v<VInputCreatorBase, VCreatorBase>);
static_assert(std::is_base_of_v<VCreatorProperties, VCreatorBase>);
static_assert(std::is_base_of_v<VCreatorProperty<4294967295u>, VCreatorProperties>);
static_assert(std::is_base_of_v<VCreatorPropertyBase, VCreatorProperty<4294967295u>>);
static_assert(std::is_base_of_v<VCreatorPropertyElements, VCreatorPropertyBase>);
static_assert(std::is_base_of_v<VManagedDomainObject<VInputCreatorBase>, VInputCreatorBase>);
static_assert(std::is_base_of_v<VManagedObject, VInputCreatorBase>);
static_assert(std::is_base_of_v<Nucleo::Interface<VCreationPreferences>, VCreationPreferences>);
static_assert(sizeof(TintSource) == sizeof(VCreator<Tint, void>), "no field is added on the way");

TEST_F(Creators, HaveTheirOperationsInTheirOrder) {
    using ByName = std::string (VCreatorBase::*)(std::string const&) const;
    using ByInput = std::string (VCreatorBase::*)(WeakObjectPtr const&,
                                                  StrongPtr<VAcceptInfo, VAcceptInfo> const&) const;
    EXPECT_EQ(virtualSlot(&VManagedObject::owner), 3u);
    EXPECT_EQ(virtualSlot(&VManagedObject::domain), 4u);
    EXPECT_EQ(virtualSlot(&VCreatorBase::create), 5u);
    EXPECT_EQ(virtualSlot(static_cast<ByName>(&VCreatorBase::createChildname)), 6u);
    EXPECT_EQ(virtualSlot(static_cast<ByInput>(&VCreatorBase::createChildname)), 7u);
    EXPECT_EQ(virtualSlot(&VCreatorBase::accept), 8u);
}

// --- Construction

TEST_F(Creators, StandInTheCatalogueFromConstructionToDestruction) {
    std::vector<std::string> const before = keys();
    {
        Entry const first("One");
        Entry const second("Two");
        EXPECT_THAT(keys(), testing::IsSupersetOf({"Tests/One", "Tests/Two"}));
        EXPECT_EQ(findCreator("Tests/One").get(), &first);
        EXPECT_FALSE(findCreator("Tests/Three"));
        EXPECT_FALSE(findCreator("One")) << "a full key is wanted";
        EXPECT_FALSE(findCreator(""));
    }
    EXPECT_EQ(keys(), before);
    EXPECT_FALSE(findCreator("Tests/One"));
}

TEST_F(Creators, AreEnteredForThePortTypeAndForNoOther) {
    Entry const entry;
    auto const sources = inputCreators(typeid(ColormapPtr));
    EXPECT_EQ(std::ranges::count(sources, entry.controlBlock(),
                                 [](auto const& each) { return each.controlBlock(); }),
              1);
    EXPECT_TRUE(inputCreators(typeid(int)).empty());
}

TEST_F(Creators, HoldOneReferenceOnThemselves) {
    Entry const entry;
    EXPECT_EQ(entry.controlBlock()->strongNow(), 1);
    { StrongPtr<VCreatorBase, VManagedObjectBase> const holder(findCreator("Tests/Tint")); }
    EXPECT_EQ(entry.controlBlock()->strongNow(), 1);
}

TEST_F(Creators, SayTheirKeyAndNumberAtVerbosity100) {
    DiagnosticText const text(100);
    Entry const entry;
    EXPECT_EQ(text.text(), "VCreator::VCreator(Tests/Tint,5)\n");
}

TEST_F(Creators, SayNothingAtVerbosity99) {
    DiagnosticText const text(99);
    Entry const entry;
    entry.create("name", Nucleo::Intercube(), nullptr);
    EXPECT_EQ(text.text(), "");
}

TEST_F(Creators, OfAPlainNameHaveNoOtherProperty) {
    DiagnosticText const text(100);
    TintSource const plain(std::string("Tests/Plain"), 2000, nullptr, false, InterfaceToken);
    EXPECT_EQ(text.text(), "VCreator::VCreator(Tests/Plain,2000)\n");
    EXPECT_EQ(plain.keyname("/"), "Tests/Plain");
    EXPECT_EQ(plain.name(), "Tests/Plain");
    EXPECT_EQ(plain.get(VCreatorPropertyElements::Category), "");
    EXPECT_EQ(plain.get(VCreatorPropertyElements::Date), "");
    EXPECT_EQ(plain.orderNumber(), 2000);
    EXPECT_EQ(findCreator("Tests/Plain").get(), &plain);
}

// --- Registration that fails

TEST_F(Creators, WhoseRegistrationFailsWarnOnceEachAndStayInTheCatalogue) {
    Entry const first("Same");
    Listener listener;
    CaptureStdout();
    Entry const second("Same");
    std::string printed = GetCapturedStdout();
    std::erase(printed, '\r');
    std::string const creator =
        Nucleo::Typename(typeid(VInputCreator<ColormapPtr, VCreator<Tint, void>>));
    std::string const port = Nucleo::Typename(typeid(ColormapPtr));
    EXPECT_EQ(printed, "WARNING: Could not register " + creator + " as input creator for type " +
                           port + "!\n");
    EXPECT_THAT(listener.warnings, ElementsAre("Could not register " + creator +
                                               " as input creator for type " + port + "!"));
    EXPECT_EQ(std::ranges::count(keys(), "Tests/Same"), 2);
    auto const sources = inputCreators(typeid(ColormapPtr));
    EXPECT_EQ(std::ranges::count(sources, second.controlBlock(),
                                 [](auto const& each) { return each.controlBlock(); }),
              0)
        << "it is no input creator";
    EXPECT_TRUE(second.create("", Nucleo::Intercube(), nullptr)) << "but it creates";
}

TEST_F(Creators, WhoseWarningThrowsAreUnwound) {
    Entry const first("Same");
    auto const before = keys();
    Listener listener;
    listener.throws = true;
    CaptureStdout();
    EXPECT_THROW(Entry("Same"), std::runtime_error);
    GetCapturedStdout();
    EXPECT_EQ(keys(), before);
}

TEST_F(Creators, TakenOutOfATypeThatHasNoneChangeNothing) {
    Entry entry;
    unregisterVInput(typeid(Made), WeakInputCreatorPtr(&entry));
    EXPECT_TRUE(inputCreators(typeid(Made)).empty());
    EXPECT_EQ(findCreator("Tests/Tint").get(), &entry);
}

TEST_F(Creators, ThatAreNoneAreEnteredOnce) {
    EXPECT_TRUE(registerVInput(typeid(Made), nullptr));
    EXPECT_FALSE(registerVInput(typeid(Made), nullptr));
    unregisterVInput(typeid(Made), nullptr);
    EXPECT_TRUE(inputCreators(typeid(Made)).empty());
}

// --- Copies

/// With an input.
class Wide : public Tincture {
public:
    Wide(std::string const& name, int, PreferencesPtr const& preferences)
        : Tincture(name, 0, preferences, "colormap") {}
    bool update(VRequest&, double) override { return true; }

    TypedSlot<double> width{this, "width", 1.0, 0};
};

TEST_F(Creators, MakeCopiesWithTheValuesOfThoseInputsThatBothHave) {
    registerValueTypes<double>();
    VSource<Wide, ColormapPtr> const entry(properties("Wide"), 5, nullptr, false, InterfaceToken);
    ObjectPtr const object = entry.create("", Nucleo::Intercube(), nullptr);
    object->slot("width")->ownParameter()->setGlobalValue(new VValue<double>(3), nullptr);
    TypedSlot<double> const added(object.get(), "added", 5.0, 0);
    ObjectPtr const copy = object->copy();
    ASSERT_TRUE(copy);
    double width = 0;
    EXPECT_TRUE(readParameter(*copy->slot("width")->ownParameter(), nullptr, width));
    EXPECT_EQ(width, 3);
    EXPECT_FALSE(copy->slot("added")) << "an input that only the object has";
}

// --- create

TEST_F(Creators, CreateObjectsOfTheGivenName) {
    Entry const entry;
    DiagnosticText const text(100);
    ObjectPtr const object = entry.create("Mine", Nucleo::Intercube(), nullptr);
    EXPECT_EQ(object->Name(), "Mine");
    EXPECT_THAT(text.lines(),
                ElementsAre("VCreator::create(Mine)", "VCreator::create(Mine) got derived object"));
}

TEST_F(Creators, GiveAnObjectWithoutANameTheirOwnButPrintTheEmptyOne) {
    Entry const entry;
    DiagnosticText const text(100);
    ObjectPtr const object = entry.create("", Nucleo::Intercube(), nullptr);
    EXPECT_EQ(object->Name(), "Tint");
    EXPECT_THAT(text.lines(),
                ElementsAre("VCreator::create()", "VCreator::create() got derived object"));
}

TEST_F(Creators, TellListenersOfTheObjectItsContextAndThemselves) {
    Entry const entry;
    Listener listener;
    Nucleo::Intercube const context;
    ObjectPtr const object = entry.create("", context, nullptr);
    ASSERT_EQ(listener.objects.size(), 1u);
    EXPECT_EQ(listener.objects[0].get(), object.get());
    EXPECT_EQ(listener.contexts[0], &context);
    EXPECT_EQ(listener.creators[0].get(), &entry);
}

TEST_F(Creators, KeepTheTokenThatTheyWereBuiltAgainst) {
    Entry const entry;
    EXPECT_STREQ(entry.token(), "TELM_API_VERSION");
    char const other[] = "another interface";
    TintSource const foreign(std::string("Tests/Foreign"), 0, nullptr, false, other);
    EXPECT_EQ(foreign.token(), other);
}

TEST_F(Creators, KeepEveryLivingObjectInMindAmongManyDeadOnes) {
    Entry const entry;
    std::vector<ObjectPtr> kept;
    for (int i = 0; i < 100; ++i) {
        kept.push_back(entry.create("kept", Nucleo::Intercube(), nullptr));
        entry.create("dropped", Nucleo::Intercube(), nullptr);
    }
    EXPECT_EQ(entry.instances().size(), kept.size());
}

TEST_F(Creators, HaveTheirObjectsReadyWhenTheyTellOfThem) {
    class Asking : public VActionNotifier {
    public:
        void created(ObjectPtr const& object, Nucleo::Intercube const&,
                     WeakPtr<VCreatorBase, VManagedObjectBase> const& creator) override {
            VRequest request(makePool());
            answered = object->request(request, 0, nullptr, nullptr);
            known = object->creator() == creator;
        }
        bool answered = false, known = false;
    } asking;
    Entry const entry;
    entry.create("", Nucleo::Intercube(), nullptr);
    EXPECT_TRUE(asking.answered) << "request processing is on";
    EXPECT_TRUE(asking.known);
}

TEST_F(Creators, PassTheExceptionOfAConstructorOut) {
    Entry const entry;
    Listener listener;
    made.throws = true;
    EXPECT_THROW(entry.create("", Nucleo::Intercube(), nullptr), std::runtime_error);
    EXPECT_TRUE(listener.objects.empty());
    EXPECT_TRUE(entry.instances().empty());
    made.throws = false;
    EXPECT_TRUE(entry.create("", Nucleo::Intercube(), nullptr));
}

TEST_F(Creators, UniteTheGivenPreferencesWithTheirOwn) {
    Entry const entry;
    PreferencesPtr const given = new VCreationPreferences("local");
    ObjectPtr const object = entry.create("", Nucleo::Intercube(), given);
    EXPECT_THAT(object->preferences()->words(), ElementsAre("local", "own"));
    EXPECT_NE(object->preferences().get(), given.get());
    EXPECT_NE(object->preferences().get(), entry.preferences().get());
}

TEST_F(Creators, MakeNoUnionWhereOneSetIsMissing) {
    Entry const with;
    Entry const without("Bare", nullptr);
    PreferencesPtr const given = new VCreationPreferences("local");
    Nucleo::Intercube const context;
    EXPECT_EQ(with.create("", context, nullptr)->preferences().get(), with.preferences().get());
    EXPECT_EQ(without.create("", context, given)->preferences().get(), given.get());
    EXPECT_FALSE(without.create("", context, nullptr)->preferences());
}

TEST_F(Creators, KnowTheirLivingObjects) {
    Entry const entry;
    ObjectPtr const kept = entry.create("kept", Nucleo::Intercube(), nullptr);
    entry.create("dropped", Nucleo::Intercube(), nullptr);
    ASSERT_EQ(entry.instances().size(), 1u);
    EXPECT_EQ(entry.instances()[0].get(), kept.get());
}

TEST_F(Creators, AreAskedForCopies) {
    Entry const entry;
    ObjectPtr const object = entry.create("name", Nucleo::Intercube(), nullptr);
    ObjectPtr const copy = object->copy();
    EXPECT_NE(copy.get(), object.get());
    EXPECT_EQ(copy->Name(), "name");
    EXPECT_EQ(copy->type_key(), "Tests/Tint");
}

TEST_F(Creators, NameChildrenAfterParentAndInput) {
    Entry const entry;
    VCreatorBase const& base = entry;
    EXPECT_EQ(base.createChildname("Slice"), "Tint_for_Slice");
    EXPECT_EQ(base.createChildname(""), "Tint");
    ObjectPtr const parent = entry.create("Slice", Nucleo::Intercube(), nullptr);
    StrongPtr<VAcceptInfo, VAcceptInfo> const input = new VAcceptInfo("colormap");
    EXPECT_EQ(base.createChildname(WeakObjectPtr(parent), input), "Tint_for_Slice_colormap");
    EXPECT_EQ(base.createChildname(WeakObjectPtr(), nullptr), "Tint");
}

// --- Teardown

TEST_F(Creators, DeleteTheirObjectsWhoeverHoldsThemWhenTheyGo) {
    ObjectPtr first, second;
    WeakCreatorPtr creator;
    {
        Entry const entry;
        creator = findCreator("Tests/Tint");
        first = entry.create("first", Nucleo::Intercube(), nullptr);
        second = entry.create("second", Nucleo::Intercube(), nullptr);
    }
    EXPECT_EQ(made.died, 2);
    EXPECT_FALSE(first) << "the holder finds its pointer empty";
    EXPECT_FALSE(second);
    EXPECT_FALSE(creator);
    EXPECT_THAT(keys(), Not(Contains("Tests/Tint")));
    EXPECT_TRUE(inputCreators(typeid(ColormapPtr)).empty()) << "and no input creator is left";
}

TEST_F(Creators, LeaveTheObjectsOfOthersAlone) {
    Entry const other("Other");
    ObjectPtr const kept = other.create("", Nucleo::Intercube(), nullptr);
    {
        Entry const entry;
        entry.create("", Nucleo::Intercube(), nullptr);
    }
    EXPECT_TRUE(kept);
    EXPECT_EQ(made.born - made.died, 1);
}

TEST_F(Creators, UnregisterBeforeTheirObjectsDie) {
    class Looking : public Tint {
    public:
        using Tint::Tint;
        ~Looking() override {
            for (auto const& each : inputCreators(typeid(ColormapPtr)))
                EXPECT_NE(WeakCreatorPtr(each)->keyname("/"), "Tests/Looking");
            EXPECT_TRUE(findCreator("Tests/Looking")) << "the creator itself still stands";
            ++made.died;
        }
    };
    ObjectPtr object;
    {
        VSource<Looking, ColormapPtr> const entry(properties("Looking"), 0, nullptr, false,
                                                  InterfaceToken);
        object = entry.create("", Nucleo::Intercube(), nullptr);
    }
    EXPECT_EQ(made.died, 2) << "once for the object, once for its base";
}

}  // namespace
}  // namespace tests
