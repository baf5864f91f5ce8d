/// Objects: their bases and operations.
#include "host/object/VObject.hpp"

#include <gtest/gtest.h>

#include "host/object/Tincture.hpp"
#include "tests/host/object/Node.hpp"
#include "tests/support/objects.hpp"
#include "tests/support/virtualSlot.hpp"

namespace tests {
namespace {

using namespace Orlo;

/// A virtual base cannot be cast down statically; a direct one can.
template <class Base, class Derived>
concept CastsDown = requires(Base* base) {
    static_cast<Derived*>(base);
};
template <class Base, class Derived>
constexpr bool virtualBase = std::is_base_of_v<Base, Derived> && !CastsDown<Base, Derived>;
template <class Base, class Derived>
constexpr bool directBase = std::is_base_of_v<Base, Derived>&& CastsDown<Base, Derived>;

static_assert(virtualBase<VManagedObjectBase, VObject>);
static_assert(virtualBase<VConnectable, VObject>);
static_assert(virtualBase<VStateCreatorBase, VObject>);
static_assert(virtualBase<VSaveable, VObject>);
static_assert(directBase<VManagedDomainObject<VObject>, VObject>);
static_assert(directBase<VScriptable, VObject>);
static_assert(directBase<VInputClassRecognition, VObject>);
static_assert(directBase<VTraceRequestID, VObject>);
static_assert(directBase<VObject, Tincture>);
static_assert(std::is_base_of_v<Nucleo::ReferenceBase<VManagedObjectBase>, VManagedObjectBase>);
static_assert(directBase<VSlotContainer, VConnectable>);
static_assert(directBase<VConnectionValidatorList, VSlotContainer>);
static_assert(directBase<ValueCacheable, VSlotContainer>);
static_assert(virtualBase<VManagedObjectBase, VSlotContainer>);
static_assert(std::is_base_of_v<Nucleo::Intercube, VManagedObject>);
static_assert(std::is_base_of_v<Nucleo::MutableName, VManagedObject>);
static_assert(!std::is_polymorphic_v<VSaveable>, "it has no virtual operations");
static_assert(!std::is_polymorphic_v<VInputClassRecognition>, "it has no table of its own");

TEST(ObjectOperations, StandInTheirOrder) {
    EXPECT_EQ(virtualSlot(&VManagedObject::owner), 3u);
    EXPECT_EQ(virtualSlot(&VManagedObject::domain), 4u);
    EXPECT_EQ(virtualSlot(&VObject::request), 5u);
    EXPECT_EQ(virtualSlot(&VObject::update), 6u);
    EXPECT_EQ(virtualSlot(&VObject::must_update), 7u);
    EXPECT_EQ(virtualSlot(&VObject::unsychronized_update), 8u);
    EXPECT_EQ(virtualSlot(&VObject::gimp_icon), 9u);
    EXPECT_EQ(virtualSlot(&VObject::xpm_icon), 10u);
    EXPECT_EQ(virtualSlot(&VObject::qt_icon), 11u);
    EXPECT_EQ(virtualSlot(&VObject::help), 12u);
    EXPECT_EQ(virtualSlot(&VObject::copy), 13u);
    EXPECT_EQ(virtualSlot(&VObject::type_key), 14u);
    EXPECT_EQ(virtualSlot(&VObject::CreateParameterName), 15u);
    EXPECT_EQ(virtualSlot(&VObject::InputCreation), 16u);
    EXPECT_EQ(virtualSlot(&Tincture::xpm_icon), 10u) << "it takes the place of the object's";
}

TEST(ObjectOperations, OfTheOtherBasesStandInTablesOfTheirOwn) {
    EXPECT_EQ(virtualSlot(&VManagedObjectBase::finalUnction), 1u);
    EXPECT_EQ(virtualSlot(&VTraceRequestID::hasRequest), 3u);
    EXPECT_EQ(virtualSlot(&VStateCreatorBase::newState), 3u);
    EXPECT_EQ(virtualSlot(&VConnectable::setup), 3u);
    EXPECT_EQ(virtualSlot(&VConnectable::allowParameterReplacement), 4u);
    EXPECT_EQ(virtualSlot(&VConnectable::connectSlots), 5u);
    EXPECT_EQ(virtualSlot(&VConnectable::ignoreInput), 6u);
    EXPECT_EQ(virtualSlot(&VConnectable::implements), 7u);
    EXPECT_EQ(virtualSlot(&VConnectable::getImplementation), 8u);
    EXPECT_EQ(virtualSlot(&VConnectable::iterateOutputs), 9u);
    EXPECT_EQ(virtualSlot(&VConnectable::CreatedFilteredConnection), 10u);
    EXPECT_EQ(virtualSlot(&VConnectable::adjustConnections), 11u);
}

TEST(VirtualBases, LieInTheOrderOfTheirConstruction) {
    NodePtr const node = new Node;
    auto const place = [&]<class Base>(Base const* base) { return static_cast<void const*>(base); };
    void const* const counted = place(static_cast<VManagedObjectBase const*>(node.get()));
    void const* const connectable = place(static_cast<VConnectable const*>(node.get()));
    void const* const state = place(static_cast<VStateCreatorBase const*>(node.get()));
    EXPECT_LT(counted, connectable);
    EXPECT_LT(connectable, state);
}

TEST(VirtualBases, AreOneSubobjectHoweverReached) {
    NodePtr const node = new Node;
    VManagedObjectBase const* const one = static_cast<VConnectable const*>(node.get());
    VManagedObjectBase const* const two = static_cast<VManagedObject const*>(node.get());
    EXPECT_EQ(one, two);
}

TEST(ObjectCasts, ReachEveryBaseFromTheCountedOne) {
    NodePtr const node = new Node;
    VManagedObjectBase* const base = node.get();
    EXPECT_NE(dynamic_cast<VObject*>(base), nullptr);
    EXPECT_NE(dynamic_cast<VConnectable*>(base), nullptr);
    EXPECT_NE(dynamic_cast<VSlotContainer*>(base), nullptr);
    EXPECT_NE(dynamic_cast<VStateCreatorBase*>(base), nullptr);
    EXPECT_NE(dynamic_cast<VScriptable*>(base), nullptr);
    EXPECT_NE(dynamic_cast<VTraceRequestID*>(base), nullptr);
    EXPECT_NE(dynamic_cast<Nucleo::Intercube*>(base), nullptr);
    EXPECT_NE(dynamic_cast<Nucleo::MutableName*>(base), nullptr);
    EXPECT_EQ(dynamic_cast<Tincture*>(base), nullptr);
}

/// A value that looks at an object while it dies.
class LastLook : public VValue<double> {
public:
    LastLook(WeakObjectPtr const& object, bool& alive) : object_(object), alive_(alive) {}
    LastLook(LastLook const& other)
        : VValue<double>(), object_(other.object_), alive_(other.alive_) {}
    ~LastLook() override { alive_ = object_.controlBlock()->objectNow() != nullptr; }
    ValuePtr copy() const override { return new LastLook(*this); }

private:
    Nucleo::WeakPtr<VObject, VManagedObjectBase> object_;
    bool& alive_;
};

TEST(VirtualBases, DieInReverseTheCountedOneLast) {
    auto* const node = new Node;  // held by nobody, so that only its own end marks it as dead
    bool countedStands = false;
    {
        StrongPtr<VValue<double>, VValueBase> const value =
            new LastLook(WeakObjectPtr(node), countedStands);
        ParameterPtr const parameter = new VValueParameter<double>(value, "last");
        VSlotGlobals::addParameter(node, "last", 0, parameter, true);
    }
    delete node;
    EXPECT_TRUE(countedStands) << "the slots die with the connectable base, before the counted one";
}

static_assert(std::is_same_v<std::underlying_type_t<VObject::HelpType>, int>,
              "every number is a value of it");

TEST(Object, KeepsTheKindThatItWasMadeWith) {
    class Kind : public Node {
    public:
        explicit Kind(int kind) : Node("node", kind) {}
    };
    EXPECT_EQ(NodePtr(new Kind(0))->kind(), 0);
    EXPECT_EQ(NodePtr(new Kind(7))->kind(), 7);
}

TEST(Object, LosesItsCreatorToNone) {
    NodePtr const node = new Node;
    node->setCreator(nullptr);
    EXPECT_FALSE(node->creator());
    EXPECT_EQ(node->type_key(), "");
}

TEST(Object, HasNoIconHelpStateOrOwnerOfItsOwn) {
    NodePtr const node = new Node("name");
    EXPECT_EQ(node->Name(), "name");
    EXPECT_EQ(node->gimp_icon(), "");
    EXPECT_EQ(node->xpm_icon(), "");
    EXPECT_EQ(node->qt_icon(), "");
    EXPECT_EQ(node->help(VObject::ShortHelp), "");
    EXPECT_FALSE(node->newState());
    EXPECT_FALSE(node->owner());
    EXPECT_EQ(node->domain(), typeid(VObject));
    EXPECT_EQ(node->type_key(), "");
    EXPECT_FALSE(node->copy()) << "no creator, no copy";
    EXPECT_FALSE(node->implements(typeid(double)));
    EXPECT_FALSE(node->getImplementation(typeid(double)));
    EXPECT_EQ(node->CreateParameterName("wish"), "wish");
}

}  // namespace
}  // namespace tests
