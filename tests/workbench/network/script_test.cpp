/// The reader of saved networks: each line form, good and bad, and what is no
/// script at all.
#include "workbench/network/Script.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "workbench/common/errors.hpp"

namespace workbench {

namespace {

using ::testing::HasSubstr;

constexpr char Banner[] = "# TelmScript Preliminiary Experimental \n# VERBOSE\n";

struct GoodLine {
    char const* text;
    Meaning meaning;
};

void PrintTo(GoodLine const& line, std::ostream* out) {
    *out << line.text;
}

class EachForm : public ::testing::TestWithParam<GoodLine> {};

TEST_P(EachForm, IsReadAsWhatItMeans) {
    EXPECT_EQ(meaningOf(GetParam().text), GetParam().meaning) << GetParam().text;
}

TEST_P(EachForm, IsWrittenAsItWasRead) {
    auto const written = textOf(GetParam().meaning);
    if (written) {
        EXPECT_EQ(*written, GetParam().text);
    }
}

GoodLine const GoodLines[] = {
    {"", BlankLine{}},
    {"  \t", BlankLine{}},
    {"# TelmScript Preliminiary Experimental ", BannerLine{}},
    {"# VERBOSE", BannerLine{}},
    {"# Expecting Implicitly created object: ", AnnouncementLine{}},
    {"# Expecting procedurally object:  CameraLens", ExpectedLine{"", "CameraLens"}},
    {"# DELETE IF EXISTS theBundle", CommentLine{}},
    {"#", CommentLine{}},
    {"# Establish Connections", CommentLine{}},
    {"# Note: Camera.status is not saved.", NoteLine{"Camera", "status"}},
    {"# Note: nothing of the kind", CommentLine{}},
    {"<>theBundle", DeletionLine{"theBundle"}},
    {"Create/GlobalTime GlobalTime", CreationLine{"Create/GlobalTime", "GlobalTime"}},
    {"Colormaps/Hypsometric Hypsometric_for_FieldSlice_colormap",
     CreationLine{"Colormaps/Hypsometric", "Hypsometric_for_FieldSlice_colormap"}},
    {"CameraControl Camera", CreationLine{"CameraControl", "Camera"}},
    {R"(Camera.zoom="45")", ParameterLine{"Camera", "zoom", "", "45"}},
    {R"(Camera.zoom{Viewer1}="45")", ParameterLine{"Camera", "zoom", "Viewer1", "45"}},
    {R"(theBundle.Threads="")", ParameterLine{"theBundle", "Threads", "", ""}},
    {R"(CameraLens.options=" -Orthographic")",
     ParameterLine{"CameraLens", "options", "", " -Orthographic"}},
    {R"(Buffer.buffer="A Frame buffer.")",
     ParameterLine{"Buffer", "buffer", "", "A Frame buffer."}},
    {R"(A.b="say "=>" and =")", ParameterLine{"A", "b", "", "say \"=>\" and ="}},
    {R"(A.Number of Colors="10")", ParameterLine{"A", "Number of Colors", "", "10"}},
    {R"(A.::b="1")", ParameterLine{"A", "::b", "", "1"}},
    {"Camera.zoom.double(max)=140", PropertyLine{"Camera", "zoom", "double", "max", "140"}},
    {"theBundle.gridsize.int32_t(min)=2",
     PropertyLine{"theBundle", "gridsize", "int32_t", "min", "2"}},
    {"GlobalTime.value.bool(allowTmaxAdjustment)=true",
     PropertyLine{"GlobalTime", "value", "bool", "allowTmaxAdjustment", "true"}},
    {"A.Number of Colors.int32_t(max)=1000",
     PropertyLine{"A", "Number of Colors", "int32_t", "max", "1000"}},
    {R"(Camera.qTelm::Net::x="0")", AttributeLine{"Camera", "qTelm::Net::x", "0"}},
    {R"(Camera.qTelm::Net::status="visible{visible}{icon}{hidden}")",
     AttributeLine{"Camera", "qTelm::Net::status", "visible{visible}{icon}{hidden}"}},
    {"Camera.time=>GlobalTime.value", ConnectionLine{"Camera", "time", "GlobalTime", "value"}},
    {"Viewer1.scene=>DefaultScene", ConnectionLine{"Viewer1", "scene", "DefaultScene", ""}},
    {"ChartSelector.::atlas=>theGrid", ConnectionLine{"ChartSelector", "::atlas", "theGrid", ""}},
    {"DefaultScene.FieldSlice.renderable=>FieldSlice",
     ConnectionLine{"DefaultScene", "FieldSlice.renderable", "FieldSlice", ""}},
    {"Camera()", SetupLine{"Camera"}},
};
INSTANTIATE_TEST_SUITE_P(Script, EachForm, ::testing::ValuesIn(GoodLines));

struct BadLine {
    char const* text;
    char const* reason;
};

void PrintTo(BadLine const& line, std::ostream* out) {
    *out << line.text;
}

class EachBadLine : public ::testing::TestWithParam<BadLine> {};

TEST_P(EachBadLine, IsUnreadableForAReason) {
    Meaning const meaning = meaningOf(GetParam().text);
    ASSERT_TRUE(std::holds_alternative<UnreadableLine>(meaning)) << GetParam().text;
    EXPECT_THAT(std::get<UnreadableLine>(meaning).reason, HasSubstr(GetParam().reason));
}

BadLine const BadLines[] = {
    {"Camera", "none of the forms"},
    {"Create/GlobalTi", "none of the forms"},
    {"Create/GlobalTime  GlobalTime", "none of the forms"},
    {"Create/GlobalTime Global Time", "none of the forms"},
    {"/GlobalTime GlobalTime", "none of the forms"},
    {"Camera(", "none of the forms"},
    {"()", "none of the forms"},
    {"<>", "name of an object"},
    {"<>two words", "name of an object"},
    {"# Expecting procedurally object:  ", "no proper name"},
    {"# Expecting procedurally object:  two words", "no proper name"},
    {"Camera.zoom=\"4", "no double quote at its end"},
    {"Camera.zoom=\"", "no double quote at its end"},
    {"Camera.zoom=\"45\" ", "no double quote at its end"},
    {"Camera.zoom=", "in double quotes"},
    {"Camera.zoom=45", "in double quotes"},
    {"Camera=\"45\"", "OBJECT.NAME"},
    {".zoom=\"45\"", "OBJECT.NAME"},
    {"Camera.=\"45\"", "OBJECT.NAME"},
    {"Camera.zoom{=\"45\"", "OBJECT.NAME"},
    {"Camera.zoom{}=\"45\"", "OBJECT.NAME"},
    {"Camera.zoom{Viewer1=\"45\"", "OBJECT.NAME"},
    {"Camera.zoom{Viewer1}x=\"45\"", "OBJECT.NAME"},
    {"Camera.zoom =\"45\"", "OBJECT.NAME"},
    {"Camera.zoom.double(max)=", "bare"},
    {"Camera.zoom.double(max)=1 2", "bare"},
    {"Camera.zoom.double()=1", "OBJECT.PARAMETER.TYPE(NAME)=VALUE"},
    {"Camera.zoom.double(max=1", "OBJECT.PARAMETER.TYPE(NAME)=VALUE"},
    {"Camera.double(max)=1", "OBJECT.PARAMETER.TYPE(NAME)=VALUE"},
    {"double(max)=1", "OBJECT.PARAMETER.TYPE(NAME)=VALUE"},
    {"Camera.time=>", "behind '=>'"},
    {"Camera.time=>GlobalTime.", "behind '=>'"},
    {"Camera.time=>.value", "behind '=>'"},
    {"Camera=>GlobalTime", "in front of '=>'"},
    {"=>GlobalTime", "in front of '=>'"},
    {"Camera.time\x01=>GlobalTime", "control character"},
};
INSTANTIATE_TEST_SUITE_P(Script, EachBadLine, ::testing::ValuesIn(BadLines));

// --- lines together

TEST(Script, TakesTheLineBehindAnAnnouncementAsTheExpectedObject) {
    Script const script = Script::read(
        std::string(Banner) + "# Expecting Implicitly created object: \n# Create/Webserver W\n");
    EXPECT_EQ(script.lines[2].meaning, Meaning(AnnouncementLine{}));
    EXPECT_EQ(script.lines[3].meaning, Meaning(ExpectedLine{"Create/Webserver", "W"}));
    EXPECT_EQ(textOf(script.lines[3].meaning), "# Create/Webserver W");
}

TEST(Script, MissesTheObjectBehindAnAnnouncement) {
    for (char const* const next : {"", "Camera()", "# Camera", "\n# CameraControl Camera"}) {
        Script const script = Script::read(
            std::string(Banner) + "# Expecting Implicitly created object: \n" + next + "\n");
        EXPECT_TRUE(std::holds_alternative<UnreadableLine>(script.lines[3].meaning)) << next;
    }
    Script const cut =
        Script::read(std::string(Banner) + "# Expecting Implicitly created object: \n");
    EXPECT_TRUE(std::holds_alternative<UnreadableLine>(cut.lines[2].meaning));
}

TEST(Script, NumbersItsLinesFromOne) {
    Script const script = Script::read(std::string(Banner) + "\nA()\n");
    ASSERT_EQ(script.lines.size(), 4U);
    for (std::size_t i = 0; i < script.lines.size(); ++i)
        EXPECT_EQ(script.lines[i].number, i + 1);
}

TEST(Script, TakesFixedLinesWithoutTheirBlankAtTheEnd) {
    Script const script = Script::read(
        "# TelmScript Preliminiary Experimental\n# Expecting Implicitly created object:\n# A B\n");
    EXPECT_EQ(script.lines[0].meaning, Meaning(BannerLine{}));
    EXPECT_EQ(script.lines[2].meaning, Meaning(ExpectedLine{"A", "B"}));
}

TEST(Script, GivesEveryByteBack) {
    for (std::string const& text :
         {std::string(Banner), std::string(Banner) + "A()", std::string(Banner) + "A.b=\"\n\n junk",
          std::string("# TelmScript Preliminiary Experimental \r\n# VERBOSE\r\n\r\nA()\r\n"),
          std::string(Banner) + "A()\r\nB()\n\xff\xfe\n"})
        EXPECT_EQ(Script::read(text).write(), text);
}

TEST(Script, ReadsLinesThatEndWithACarriageReturnToo) {
    Script const script = Script::read(
        "# TelmScript Preliminiary Experimental \r\n# VERBOSE\r\nA.b=\"1\"\r\nA()\r\n");
    EXPECT_EQ(script.lines[2].meaning, Meaning(ParameterLine{"A", "b", "", "1"}));
    EXPECT_EQ(script.lines[3].meaning, Meaning(SetupLine{"A"}));
}

TEST(Script, TellsWhenTheLastLineHasNoEnd) {
    EXPECT_FALSE(Script::read(Banner).endsOpen);
    EXPECT_TRUE(Script::read(std::string(Banner) + "A()").endsOpen);
    EXPECT_TRUE(Script::read("# TelmScript Preliminiary Experimental ").endsOpen);
}

TEST(Script, ReadsALineUpToTheLongestAndNoFurther) {
    std::string const head = "A.b=\"";
    std::string const longest =
        head + std::string(Script::MaxLineLength - head.size() - 1, 'x') + "\"";
    ASSERT_EQ(longest.size(), Script::MaxLineLength);
    EXPECT_TRUE(std::holds_alternative<ParameterLine>(meaningOf(longest)));
    for (std::size_t const excess : {std::size_t(1), std::size_t(1) << 20}) {
        Script const script = Script::read(Banner + head + std::string(excess, 'x') +
                                           longest.substr(head.size()) + "\nA()\n");
        ASSERT_EQ(script.lines.size(), 4U);
        EXPECT_THAT(std::get<UnreadableLine>(script.lines[2].meaning).reason,
                    HasSubstr("more than 65536 are not read"));
        EXPECT_EQ(script.lines[3].meaning, Meaning(SetupLine{"A"}));
    }
}

struct NoScript {
    std::string text;
    char const* reason;
};

TEST(Script, RefusesWhatIsNoScript) {
    NoScript const cases[] = {
        {"", "is empty"},
        {std::string("# TelmScript Preliminiary Experimental \n\0", 41), "byte 41 is zero"},
        {std::string("\x7f"
                     "ELF\0\0",
                     6),
         "is no text"},
        {"\x89PNG\r\n", "is no saved network: its first line is '\x89PNG'"},
        {"\n# TelmScript Preliminiary Experimental \n", "its first line is ''"},
        {"# VERBOSE\n", "its first line is '# VERBOSE'"},
        {std::string(1 << 20, 'x'), "is no saved network"},
    };
    for (NoScript const& each : cases) {
        try {
            Script::read(each.text);
            FAIL() << each.reason;
        } catch (WorkError const& error) {
            EXPECT_THAT(error.what(), HasSubstr(each.reason));
            EXPECT_LT(std::string(error.what()).size(), 250U) << "a message of one line";
        }
    }
}

TEST(Script, IsReadTheSameAfterAnyCut) {
    std::string text = Banner;
    for (GoodLine const& each : GoodLines)
        text += std::string(each.text) + "\n";
    for (std::size_t length = 45; length < text.size(); ++length) {
        Script const script = Script::read(text.substr(0, length));
        EXPECT_EQ(script.write(), text.substr(0, length));
        EXPECT_EQ(script.endsOpen, text[length - 1] != '\n') << length;
    }
}

TEST(Script, WritesWhatItUnderstandsOfRandomLinesSoThatItReadsTheSame) {
    std::mt19937 random(20240322);
    std::string const signs = "Aa.:={}()\"<># /1";
    std::size_t understood = 0;
    for (int i = 0; i < 200000; ++i) {
        std::string text(random() % 12, ' ');
        for (char& each : text)
            each = signs[random() % signs.size()];
        Meaning const meaning = meaningOf(text);
        if (auto const written = textOf(meaning)) {
            ++understood;
            EXPECT_EQ(*written, text);
            EXPECT_EQ(meaningOf(*written), meaning);
        }
    }
    EXPECT_GT(understood, 100U);
}

TEST(ValuePath, IsAnObjectAParameterAndPerhapsAContext) {
    auto const plain = valuePathOf("Camera.zoom");
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->object, "Camera");
    EXPECT_EQ(plain->name, "zoom");
    EXPECT_EQ(plain->context, "");
    auto const within = valuePathOf("Camera.zoom{Viewer1}");
    ASSERT_TRUE(within);
    EXPECT_EQ(within->context, "Viewer1");
    for (char const* const bad : {"", "Camera", "Camera.", ".zoom", "Camera.zoom{", "Camera.zoom{}",
                                  "Camera.zoom{V}x", "Camera.zoom}", "Cam era.zoom"})
        EXPECT_FALSE(valuePathOf(bad)) << bad;
}

}  // namespace

}  // namespace workbench
