/// The host's own reports of pointer misuse, a line each on standard error.
#include <gtest/gtest.h>

#include <functional>

#include "host/pointers/SpeakPtr.hpp"

namespace tests {
namespace {

using Nucleo::SpeakPtr;

struct ReportRow {
    std::string name;
    std::function<void(SpeakPtr&)> report;
    std::string start;  ///< how the line begins; addresses follow in some
};

std::vector<ReportRow> const Reports{
    {"DynPtrInvalid",
     [](SpeakPtr& speaker) { speaker.DynPtrInvalid(nullptr, nullptr, -111, 2, typeid(double)); },
     "pointer: last reference to a dead double (block "},
    {"SelfConstruction",
     [](SpeakPtr& speaker) { speaker.SelfConstruction(typeid(double), nullptr, nullptr); },
     "pointer: a pointer to double is made from itself ("},
    {"DestructionCancelled",
     [](SpeakPtr& speaker) { speaker.DestructionCancelled(1, 3, typeid(double)); },
     "pointer: double got a new reference while it was to be deleted (1, 3)"},
    {"WarningUnctionChange",
     [](SpeakPtr& speaker) { speaker.WarningUnctionChange(2, 3, typeid(double)); },
     "pointer: the count of double changed in its finalUnction (2, 3)"},
    {"ShortTrace",
     [](SpeakPtr& speaker) { speaker.printRS("label", "take", typeid(double), true); },
     "trace: label: take strong double"},
    {"ShortTraceOfAWeakPointer",
     [](SpeakPtr& speaker) { speaker.printRS("label", "take", typeid(double), false); },
     "trace: label: take weak double"},
    {"LongTrace",
     [](SpeakPtr& speaker) {
         speaker.printRS("label", "take", 1, 2, typeid(double), nullptr, nullptr);
     },
     "trace: label: take double (block "},
};

class StandardSpeaker : public testing::TestWithParam<ReportRow> {};

TEST_P(StandardSpeaker, WritesOneLine) {
    testing::internal::CaptureStderr();
    GetParam().report(*SpeakPtr::theSpeaker());
    std::string text = testing::internal::GetCapturedStderr();
    std::erase(text, '\r');
    EXPECT_TRUE(text.starts_with(GetParam().start)) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
    EXPECT_EQ(text.back(), '\n');
}

INSTANTIATE_TEST_SUITE_P(Reports, StandardSpeaker, testing::ValuesIn(Reports),
                         [](auto const& row) { return row.param.name; });

TEST(StandardSpeakerInForce, IsRestoredByNull) {
    SpeakPtr* const standard = SpeakPtr::theSpeaker();
    ASSERT_NE(standard, nullptr);
    SpeakPtr mine;
    EXPECT_EQ(SpeakPtr::setSpeaker(&mine), nullptr);
    EXPECT_EQ(SpeakPtr::theSpeaker(), &mine);
    EXPECT_EQ(SpeakPtr::setSpeaker(nullptr), &mine);
    EXPECT_EQ(SpeakPtr::theSpeaker(), standard);
    EXPECT_FALSE(SpeakPtr::Tracing) << "tracing is off at first";
}

}  // namespace
}  // namespace tests
