/// Where the host's messages go.
#include <gtest/gtest.h>

#include "host/creators/VActionNotifier.hpp"
#include "host/values/Vprintf.hpp"
#include "tests/support/DiagnosticText.hpp"

namespace tests {
namespace {

using namespace Orlo;
using testing::internal::CaptureStderr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStderr;
using testing::internal::GetCapturedStdout;

std::string lines(std::string text) {
    std::erase(text, '\r');
    return text;
}

TEST(Verbosity, LetsThroughMessagesUpToItsLevel) {
    DiagnosticText const text(50);
    Vprintf(0, "zero %d\n", 1);
    Vprintf(50, "fifty\n");
    Vprintf(51, "fifty-one\n");
    EXPECT_EQ(text.text(), "zero 1\nfifty\n");
}

TEST(Verbosity, AtFirstLetsNothingThrough) {
    EXPECT_EQ(verbosity(), -1);
    CaptureStdout();
    Vprintf(0, "nothing\n");
    EXPECT_EQ(GetCapturedStdout(), "");
}

TEST(Messages, GoToStandardOutputUnlessLedElsewhere) {
    setVerbosity(10);
    CaptureStdout();
    Vprintf(10, "here\n");
    std::fflush(stdout);
    EXPECT_EQ(lines(GetCapturedStdout()), "here\n");
    setVerbosity(-1);
}

TEST(Messages, OfAnyLengthComeWhole) {
    std::string const text(100000, 'x');
    DiagnosticText const printed(0);
    Vprintf(0, "%s", text.c_str());
    EXPECT_EQ(printed.text(), text);
}

TEST(Warnings, GoToStandardErrorWhereNobodyListens) {
    CaptureStderr();
    VActionNotifier::Warning("careful");
    EXPECT_EQ(lines(GetCapturedStderr()), "warning: careful\n");
}

class Listener : public VActionNotifier {
public:
    explicit Listener(std::string& all) : all_(all) {}
    void warned(std::string const& text) override { all_ += text + ";"; }

private:
    std::string& all_;
};

TEST(Warnings, ReachEveryListenerWhileItLives) {
    std::string first, second;
    CaptureStderr();
    {
        Listener const one(first);
        {
            Listener const two(second);
            VActionNotifier::Warning("a");
        }
        VActionNotifier::Warning("b");
    }
    EXPECT_EQ(GetCapturedStderr(), "");
    EXPECT_EQ(first, "a;b;");
    EXPECT_EQ(second, "a;");
}

}  // namespace
}  // namespace tests
