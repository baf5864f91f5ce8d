/// Changes that cannot be made: each says why, and leaves everything as it was.
#include "tests/workbench/serve/StudioTest.hpp"

namespace workbench {
namespace {

using testing::HasSubstr;

struct Case {
    char const* rule;
    char const* change;
    char const* reason;
};

Case const Cases[] = {
    {"no JSON", "{'do':", "no JSON object"},
    {"no object", "[1]", "no JSON object"},
    {"nothing to do", "{}", "lacks \"do\""},
    {"an unknown change", "{'do':'explode','object':'Map'}", "no change 'explode'"},
    {"a number for a text", "{'do':'set','object':5,'name':'a','text':'b'}", "lacks \"object\""},
    {"no text", "{'do':'set','object':'Map','name':'startcolor'}", "lacks \"text\""},
    {"an unknown object", "{'do':'set','object':'Mop','name':'a','text':'b'}",
     "did you mean 'Map'"},
    {"an unknown parameter", "{'do':'set','object':'Slice','name':'mod','text':'X'}",
     "did you mean 'mode'"},
    {"a text that does not parse",
     "{'do':'set','object':'Slice','name':'transparency','text':'much'}", "'much' is no value"},
    {"an unknown viewer",
     "{'do':'set','object':'Camera','name':'zoom','context':'Viewer9','text':'3'}",
     "no context 'Viewer9'"},
    {"a text of two lines", "{'do':'set','object':'Map','name':'startcolor','text':'a\\nb'}",
     "one line"},
    {"a reset of an unknown parameter", "{'do':'reset','object':'Slice','name':'mod'}",
     "did you mean 'mode'"},
    {"a place that is no number", "{'do':'move','object':'Map','x':'1','y':2}", "lacks \"x\""},
    {"an unknown entry", "{'do':'create','key':'Colormaps/Glowe','x':0,'y':0}",
     "near it is 'Colormaps/Glow'"},
    {"a name that is taken", "{'do':'create','key':'Colormaps/Glow','name':'Map','x':0,'y':0}",
     "there is an object 'Map' already"},
    {"a name that is no name", "{'do':'create','key':'Colormaps/Glow','name':'a b','x':0,'y':0}",
     "names hold no blanks"},
    {"a name that would be more lines",
     "{'do':'create','key':'Colormaps/Glow','name':'a\\n<>Map','x':0,'y':0}", "cannot stand"},
    {"a key that would be more lines",
     "{'do':'create','key':'A\\n<>Map\\nColormaps/Glow','name':'b','x':0,'y':0}", "cannot stand"},
    {"a deletion of nothing", "{'do':'delete','object':'Nobody'}", "there is no object 'Nobody'"},
    {"a deletion of the host's own", "{'do':'delete','object':'Viewer1'}", "made by the host"},
    {"a replacement of the host's own", "{'do':'replace','object':'Camera','key':'Colormaps/Glow'}",
     "not made by this network"},
    {"a replacement by nothing", "{'do':'replace','object':'Map','key':'Colormaps/None'}",
     "no entry 'Colormaps/None'"},
    {"types that do not fit",
     "{'do':'connect','object':'Slice','input':'colormap','provider':'Bundle'}",
     "the types do not fit"},
    {"a cycle",
     "{'do':'connect','object':'Map','input':'exponent','provider':'Map',"
     "'parameter':'exponent'}",
     "'Map'"},
    {"an unknown input", "{'do':'connect','object':'Slice','input':'colourmap','provider':'Map'}",
     "no input"},
    {"a provider that is not there",
     "{'do':'connect','object':'Slice','input':'colormap','provider':'Mop'}", "did you mean 'Map'"},
    {"an input that would be more lines",
     "{'do':'connect','object':'Slice','input':'a\\n<>Map','provider':'Map'}", "cannot stand"},
    {"a cut where nothing is connected", "{'do':'disconnect','object':'Slice','input':'chart'}",
     "has no connection"},
    {"nothing to undo", "{'do':'undo'}", "nothing to undo"},
};

class Refused : public StudioTest, public testing::WithParamInterface<Case> {};

TEST_P(Refused, SayWhyAndLeaveEverythingAsItWas) {
    Case const& each = GetParam();
    std::string const state = studio_.state();
    auto const picture = studio_.picture("Viewer1");
    EXPECT_THAT(refusal(each.change), HasSubstr(each.reason)) << each.rule;
    EXPECT_EQ(studio_.text(), SmallNetwork) << each.rule;
    EXPECT_EQ(studio_.state(), state) << each.rule;
    EXPECT_EQ(studio_.picture("Viewer1"), picture) << each.rule;
    expectTextAndPicturesAgree();
}

INSTANTIATE_TEST_SUITE_P(All, Refused, testing::ValuesIn(Cases));

}  // namespace
}  // namespace workbench
