/// The sixty-one fixed colours.
#include <gtest/gtest.h>

#include <limits>

#include "tests/prism/ForeignMap.hpp"
#include "tests/prism/parameterRow.hpp"
#include "tests/support/PluginTest.hpp"
#include "tests/support/RecordingOutput.hpp"
#include "workbench/platform/ownProcess.hpp"

namespace tests {
namespace {

using Tessar::rgba_float_t;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<rgba_float_t> const Colors{
    {1, 0, 0, 0},
    {1, 0.54901963, 0, 0},
    {0.85490197, 0.64705884, 0.1254902, 0},
    {0.7411765, 0.7176471, 0.41960785, 0},
    {0.5019608, 0.5019608, 0, 0},
    {0, 0, 0, 0},
    {1, 1, 0, 0},
    {0.6039216, 0.8039216, 0.19607843, 0},
    {0.4862745, 0.9882353, 0, 0},
    {0, 0.39215687, 0, 0},
    {0.19607843, 0.8039216, 0.19607843, 0},
    {0.56078434, 0.7372549, 0.56078434, 0},
    {0.4, 0.8039216, 0.6666667, 0},
    {0.18431373, 0.30980393, 0.30980393, 0},
    {0, 1, 1, 0},
    {0.8784314, 1, 1, 0},
    {0.27450982, 0.50980395, 0.7058824, 0},
    {0.39215687, 0.58431375, 0.92941177, 0},
    {0.09803922, 0.09803922, 0.4392157, 0},
    {0.29411766, 0, 0.50980395, 0},
    {0.48235294, 0.40784314, 0.93333334, 0},
    {0.54509807, 0, 0.54509807, 0},
    {0.84705883, 0.7490196, 0.84705883, 0},
    {0.93333334, 0.50980395, 0.93333334, 0},
    {1, 0, 1, 0},
    {1, 0.7529412, 0.79607844, 0},
    {0.9607843, 0.87058824, 0.7019608, 0},
    {0.54509807, 0.27058825, 0.07450981, 0},
    {0.7372549, 0.56078434, 0.56078434, 0},
    {0.6627451, 0.6627451, 0.6627451, 0},
    {0.30117646, 0, 0, 0},
    {0.6, 0.32941177, 0, 0},
    {0.5129412, 0.3882353, 0.075294115, 0},
    {0.44470587, 0.43058825, 0.2517647, 0},
    {0.30117646, 0.30117646, 0, 0},
    {0.44470587, 0.43058825, 0.2517647, 0},
    {0.6, 0.6, 0, 0},
    {0.36235294, 0.48235294, 0.11764706, 0},
    {0.2917647, 0.59294116, 0, 0},
    {0, 0.23529412, 0, 0},
    {0.11764706, 0.48235294, 0.11764706, 0},
    {0.33647057, 0.44235295, 0.33647057, 0},
    {0.24, 0.48235294, 0.4, 0},
    {0.11058824, 0.18588236, 0.18588236, 0},
    {0, 0.6, 0.6, 0},
    {0.52705884, 0.6, 0.6, 0},
    {0.16470589, 0.30588236, 0.42352942, 0},
    {0.23529412, 0.35058823, 0.55764705, 0},
    {0.05882353, 0.05882353, 0.26352942, 0},
    {0.1764706, 0, 0.30588236, 0},
    {0.28941175, 0.24470589, 0.56, 0},
    {0.32705882, 0, 0.32705882, 0},
    {0.5082353, 0.44941175, 0.5082353, 0},
    {0.56, 0.30588236, 0.56, 0},
    {0.6, 0, 0.6, 0},
    {0.6, 0.4517647, 0.47764707, 0},
    {0.5764706, 0.52235293, 0.42117646, 0},
    {0.32705882, 0.16235293, 0.044705883, 0},
    {0.44235295, 0.33647057, 0.33647057, 0},
    {0.39764705, 0.39764705, 0.39764705, 0},
    {0.6, 0.6, 0.6, 0},
};

std::vector<Setting> const Dark{{"red", "0"}, {"green", "0"}, {"blue", "0"}};

DescribedMap const description{{
    .name = "BigColorMap",
    .creator = {.order = -1000,
                .preferences = {"default"},
                .description = "Colormap with bigger color ramp.",
                .tags = "General;Tidewatch",
                .source = "prism/tinctures/BigColorMap"},
    .parameters = {parameter<double>("red", "1", 0, {{"min", "0"}, {"max", "1"}}),
                   parameter<double>("green", "1", 0, {{"min", "0"}, {"max", "1"}}),
                   parameter<double>("blue", "1", 0, {{"min", "0"}, {"max", "1"}}),
                   parameter<int>("steps", "256", 1, {{"min", "2"}, {"max", "256"}})},
    .size = 61,
    .cycle = {},
    .help = {},
    .lookups = rowsOf(Colors) +
               std::vector<LookupRow>{
                   {"zero is row 0", {}, 0, Colors[0]},
                   {"below 0.5/61 is row 0", {}, 0.0081, Colors[0]},
                   {"a half is row 31", {}, 0.5, Colors[31]},
                   {"one is row 60", {}, 1, Colors[60]},
                   {"above one is row 60", {}, 1000, Colors[60]},
                   {"below zero is row 0", {}, -0.7, Colors[0]},
                   {"beyond 32 bits upward is row 0", {}, 1e9, Colors[0]},
                   {"beyond 32 bits downward is row 0", {}, -1e9, Colors[0]},
                   {"no number is row 0", {}, NotANumber, Colors[0]},
                   {"infinity is row 0", {}, Infinity, Colors[0]},
                   {"negative infinity is row 0", {}, -Infinity, Colors[0]},
                   {"the components play no part", Dark, 0.5, Colors[31]},
                   {"the steps play no part", {{"steps", "2"}}, 0.5, Colors[31]},
               },
}};

using BigColorMap = PluginTest;

TEST_F(BigColorMap, SaysTheNumberOfItsColoursAtEachUpdateAndOverrulesTheSteps) {
    Orlo::ObjectPtr const object = create("Colormaps/BigColorMap");
    Orlo::PoolPtr const pool = makePool();
    for (std::string const steps : {"2", "256", "-7"}) {
        set(*object, "steps", steps);
        testing::internal::CaptureStdout();
        Orlo::ColormapPtr const published = update(*object, pool);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "we have colors: 61\n");
        EXPECT_EQ(published->getSize(), 61);
        EXPECT_EQ(object->slot("steps")->parameter()->ownValue()->text(), steps);
    }
}

TEST_F(BigColorMap, LetsItsLineOutAtOnce) {
    Orlo::ObjectPtr const object = create("Colormaps/BigColorMap");
    testing::internal::CaptureStdout();
    update(*object, makePool());
    std::size_t const written = workbench::writtenBytes();
    std::string const line = testing::internal::GetCapturedStdout();
    EXPECT_GE(written, line.size()) << "the program has not flushed it";
}

TEST_F(BigColorMap, SaysNothingOfAForeignMap) {
    Orlo::ObjectPtr const object = create("Colormaps/BigColorMap");
    Orlo::PoolPtr const pool = makePool();
    RecordingOutput output(*object, pool);
    output.place(new ForeignMap);
    testing::internal::CaptureStdout();
    forceUpdate(*object, pool);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

}  // namespace
}  // namespace tests
