/// The small bases of the pointer library.
#include <gtest/gtest.h>

#include "host/pointers/Functor.hpp"
#include "host/pointers/Intercube.hpp"
#include "host/pointers/Interface.hpp"
#include "host/pointers/MutableName.hpp"
#include "host/pointers/StringList.hpp"
#include "host/pointers/StrongPtr.hpp"
#include "host/pointers/Typename.hpp"
#include "host/values/FlagList.hpp"

namespace tests {
namespace {

static_assert(std::is_base_of_v<Nucleo::ReferenceBase<Nucleo::StringList>, Nucleo::StringList>);
static_assert(std::is_base_of_v<std::list<std::string>, Nucleo::StringList>);
static_assert(
    std::is_base_of_v<Nucleo::ReferenceBase<Nucleo::InterfaceBase>, Nucleo::InterfaceBase>);
static_assert(std::is_base_of_v<Nucleo::InterfaceBase, Nucleo::Interface<int>>);
static_assert(std::has_virtual_destructor_v<Nucleo::Intercube>);
static_assert(std::has_virtual_destructor_v<Nucleo::MutableName>);
static_assert(std::has_virtual_destructor_v<Nucleo::Functor>);

TEST(TypeNames, AreReadable) {
    EXPECT_EQ(Nucleo::Typename(typeid(double)), "double");
    EXPECT_EQ(Nucleo::Typename(typeid(Orlo::FlagList)), "Orlo::FlagList");
}

TEST(Names, CanChange) {
    Nucleo::MutableName name("first");
    EXPECT_EQ(name.Name(), "first");
    name.setName("second");
    EXPECT_EQ(name.Name(), "second");
}

TEST(TextLists, AreCounted) {
    Nucleo::StrongPtr<Nucleo::StringList, Nucleo::StringList> const list = new Nucleo::StringList;
    list->push_back("word");
    EXPECT_EQ(list->size(), 1u);
    EXPECT_EQ(list.controlBlock()->strongNow(), 1);
}

}  // namespace
}  // namespace tests
