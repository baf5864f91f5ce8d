/// The texts that objects give about themselves.
#include <gtest/gtest.h>

#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

using Orlo::VObject;

class Help : public PluginTest, public testing::WithParamInterface<MapDescription> {
protected:
    HelpRow const& row() const { return GetParam().help; }
    std::string const& orShort(std::string const& text) const {
        return text.empty() ? row().shortText : text;
    }
};

TEST_P(Help, GivesLinkLongTextAndForAnyOtherTypeTheShortText) {
    Orlo::ObjectPtr const object = create(GetParam().key());
    EXPECT_EQ(object->help(VObject::HelpLink), orShort(row().link));
    EXPECT_EQ(object->help(VObject::LongHelp), orShort(row().longText));
    // Braces take a number for types only that hold every number.
    for (int const type : {0, 3, 99, -1})
        EXPECT_EQ(object->help(VObject::HelpType{type}), row().shortText) << type;
}

INSTANTIATE_TEST_SUITE_P(Maps, Help, testing::ValuesIn(describedMaps()),
                         [](auto const& map) { return testName(map.param.name); });

}  // namespace
}  // namespace tests
