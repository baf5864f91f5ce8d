/// Values written into a script: which lines change, and where new ones stand.
#include "workbench/network/editScript.hpp"

#include <gtest/gtest.h>

namespace workbench {
namespace {

constexpr char Text[] =
    "# TelmScript Preliminiary Experimental \n"
    "# VERBOSE\n"
    "\n"
    "<>A\n"
    "Create/Thing A\n"
    "A.first{V}=\"1\"\n"
    "A.first=\"2\"\n"
    "A.first.double(max)=9\n"
    "A.third=\"3\"\n"
    "# Note: A.fourth is not saved.\n"
    "A.qTelm::Net::ExpertLevel=\"0\"\n"
    "A.qTelm::Net::x=\"5\"\n"
    "A.late=\"\"\n"
    "\n"
    "Create/Thing Bare\n"
    "\n"
    "A()\n"
    "Bare()\n";

struct Case {
    char const* rule;
    char const* path;
    char const* value;
    std::size_t line;  ///< from 1
    char const* text;  ///< what then stands there
    bool isNew;        ///< a line more, not another text
};

std::vector<std::string> splitLines(std::string const& text) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t const end = text.find('\n', begin);
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

Case const Cases[] = {
    {"a plain value has its line", "A.first", "7", 7, "A.first=\"7\"", false},
    {"a value of a context has its line", "A.first{V}", "7", 6, "A.first{V}=\"7\"", false},
    {"so has a value behind the attributes", "A.late", "7", 13, "A.late=\"7\"", false},
    {"so has an attribute", "A.qTelm::Net::x", "7", 12, "A.qTelm::Net::x=\"7\"", false},
    {"a new parameter stands in its order", "A.second", "7", 9, "A.second=\"7\"", true},
    {"the first one behind the creation", "A.zeroth", "7", 6, "A.zeroth=\"7\"", true},
    {"the last one before the attributes", "A.fifth", "7", 11, "A.fifth=\"7\"", true},
    {"a context in front of the plain line", "A.first{W}", "7", 7, "A.first{W}=\"7\"", true},
    {"also where it is the first", "A.third{W}", "7", 9, "A.third{W}=\"7\"", true},
    {"an attribute in its order", "A.qTelm::Net::status", "icon", 12,
     "A.qTelm::Net::status=\"icon\"", true},
    {"an unknown attribute behind the known", "A.qTelm::Net::z", "7", 13, "A.qTelm::Net::z=\"7\"",
     true},
    {"an object without any lines", "Bare.first", "7", 16, "Bare.first=\"7\"", true},
};

TEST(WriteValue, ChangesTheLineConcernedAndNoOther) {
    for (Case const& each : Cases) {
        Script script = Script::read(Text);
        writeValue(script, *valuePathOf(each.path), each.value,
                   {"zeroth", "first", "second", "third", "fourth", "fifth", "late"});
        std::vector<std::string> expected = splitLines(Text);
        auto const at = expected.begin() + static_cast<std::ptrdiff_t>(each.line) - 1;
        if (each.isNew)
            expected.insert(at, each.text);
        else
            *at = each.text;
        EXPECT_EQ(splitLines(script.write()), expected) << each.rule;
        EXPECT_EQ(Script::read(script.write()).write(), script.write()) << each.rule;
    }
}

TEST(WriteValue, KeepsTheEndsOfLinesThatTheScriptHas) {
    Script script =
        Script::read("# TelmScript Preliminiary Experimental \r\nCreate/Thing A\r\nA.b=\"1\"\r\n");
    writeValue(script, *valuePathOf("A.b"), "2", {"b", "c"});
    writeValue(script, *valuePathOf("A.c"), "3", {"b", "c"});
    EXPECT_EQ(script.write(),
              "# TelmScript Preliminiary Experimental \r\nCreate/Thing A\r\nA.b=\"2\"\r\n"
              "A.c=\"3\"\r\n");
}

TEST(WriteValue, EndsALastLineThatWasOpen) {
    Script script = Script::read("# TelmScript Preliminiary Experimental \nCreate/Thing A");
    writeValue(script, *valuePathOf("A.b"), "2", {"b"});
    EXPECT_EQ(script.write(),
              "# TelmScript Preliminiary Experimental \nCreate/Thing A\nA.b=\"2\"\n");
}

TEST(WriteValue, TakesTheLastOfSeveralLinesOfOnePlace) {
    Script script = Script::read(
        "# TelmScript Preliminiary Experimental \nCreate/Thing A\nA.b=\"1\"\nA.b=\"2\"\n");
    writeValue(script, *valuePathOf("A.b"), "3", {"b"});
    EXPECT_EQ(script.write(),
              "# TelmScript Preliminiary Experimental \nCreate/Thing A\nA.b=\"1\"\nA.b=\"3\"\n");
}

TEST(WriteValue, LeavesTheLinesOfAnObjectAloneThatWasDeleted) {
    std::string const first =
        "# TelmScript Preliminiary Experimental \nCreate/Thing A\nA.b=\"1\"\nA.c=\"1\"\n";
    std::string const second = "<>A\nCreate/Thing A\nA.c=\"2\"\n";
    Script script = Script::read(first + second + "A()\n");
    writeValue(script, *valuePathOf("A.b"), "3", {"b", "c"});
    writeValue(script, *valuePathOf("A.c"), "4", {"b", "c"});
    EXPECT_EQ(script.write(), first + "<>A\nCreate/Thing A\nA.b=\"3\"\nA.c=\"4\"\nA()\n");
}

TEST(WriteValue, LeavesOutAnObjectThatTheScriptDoesNotHold) {
    Script script = Script::read(Text);
    writeValue(script, *valuePathOf("Stranger.b"), "3", {"b"});
    EXPECT_EQ(script.write(), Text);
}

}  // namespace
}  // namespace workbench
