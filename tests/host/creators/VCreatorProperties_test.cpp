/// What a creator tells of itself.
#include "host/creators/VCreatorProperties.hpp"

#include <gtest/gtest.h>

namespace tests {
namespace {

using namespace Orlo;

TEST(CreatorProperties, AreFoldedInTheirOrder) {
    VCreatorProperties const list(TodoIs("todo"), DescriptionIs("text"), TagsAre("a;b"),
                                  DateIs("Mar 22 2024"), NameIs("Name"), SourceIs("path"),
                                  CategoryIs("Folder"), NameIs("Later"));
    EXPECT_EQ(list.get(VCreatorPropertyElements::Category), "Folder");
    EXPECT_EQ(list.get(VCreatorPropertyElements::Name), "Later") << "the last one holds";
    EXPECT_EQ(list.get(VCreatorPropertyElements::Description), "text");
    EXPECT_EQ(list.get(VCreatorPropertyElements::Todo), "todo");
    EXPECT_EQ(list.get(VCreatorPropertyElements::Tags), "a;b");
    EXPECT_EQ(list.get(VCreatorPropertyElements::Source), "path");
    EXPECT_EQ(list.get(VCreatorPropertyElements::Date), "Mar 22 2024");
}

TEST(CreatorProperties, HaveTheirKeysAtTheirPlaces) {
    EXPECT_EQ(VCreatorPropertyElements::Category, 0u);
    EXPECT_EQ(VCreatorPropertyElements::Name, 1u);
    EXPECT_EQ(VCreatorPropertyElements::Description, 3u);
    EXPECT_EQ(VCreatorPropertyElements::Todo, 6u);
    EXPECT_EQ(VCreatorPropertyElements::Tags, 10u);
    EXPECT_EQ(VCreatorPropertyElements::Source, 11u);
    EXPECT_EQ(VCreatorPropertyElements::Date, 12u);
}

TEST(CreatorProperties, TakeOverOnlyWhatIsSet) {
    VCreatorPropertyBase list;
    list.assign(NameIs("Name")).assign(CategoryIs("Folder")).assign(VCreatorPropertyBase());
    EXPECT_EQ(list.keyname("/"), "Folder/Name");
    EXPECT_EQ(list.keyname("::"), "Folder::Name");
    list.assign(NameIs("Other"));
    EXPECT_EQ(list.keyname("/"), "Folder/Other");
}

TEST(CreatorProperties, TellAnEmptyTextFromOneThatIsNotSet) {
    VCreatorProperties const list(DescriptionIs(""), NameIs("Name"));
    EXPECT_TRUE(list.isSet(VCreatorPropertyElements::Description));
    EXPECT_FALSE(list.isSet(VCreatorPropertyElements::Tags));
    EXPECT_EQ(list.get(VCreatorPropertyElements::Description), "");
    EXPECT_EQ(list.get(VCreatorPropertyElements::Tags), "");
    VCreatorProperties const later(DescriptionIs("text"), DescriptionIs(""));
    EXPECT_EQ(later.get(VCreatorPropertyElements::Description), "") << "the last one holds";
}

TEST(CreatorProperties, WithoutACategoryHaveTheNameAsTheirKey) {
    EXPECT_EQ(VCreatorProperties(NameIs("Name")).keyname("/"), "Name");
    EXPECT_EQ(VCreatorProperties().keyname("/"), "");
}

}  // namespace
}  // namespace tests
