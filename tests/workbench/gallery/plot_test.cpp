#include "workbench/gallery/plot.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/workbench/picture/sampleMaps.hpp"

namespace {

using namespace workbench;
using namespace tests;
using testing::HasSubstr;
using testing::Not;

Samples const ordinary = samplesOf({{0, 1, 0.5, 1}, {1, 1, 0.5, 1}});
Samples const huge = samplesOf({{1, 1, 1, 1}, {-1e6F, 2e6F, 0, 1}});
Samples const broken = samplesOf({{0, 0, NaN, 1}, {0, 0, NaN, 1}, {Infinity, 0, 0, 1}});

/// 1 and 0 lie 4 parts of 108 from the top and the bottom.
TEST(ComponentPlot, DrawsEachComponentAsItIs) {
    std::string const plot = componentPlot(ordinary);
    EXPECT_THAT(plot, HasSubstr(R"(<path class="curve red" d="M160 173.33L480 6.67"/>)"));
    EXPECT_THAT(plot, HasSubstr(R"(<path class="curve green" d="M160 6.67L480 6.67"/>)"));
    EXPECT_THAT(plot, HasSubstr(R"(<path class="curve blue" d="M160 90L480 90"/>)"));
}

TEST(ComponentPlot, Marks0And1AndWhatLiesBetween) {
    for (Samples const& samples : {ordinary, huge, broken}) {
        std::string const plot = componentPlot(samples);
        EXPECT_THAT(plot, HasSubstr(R"(class="within")"));
        EXPECT_THAT(plot, HasSubstr(R"(">0</text>)"));
        EXPECT_THAT(plot, HasSubstr(R"(">1</text>)"));
        std::size_t marks = 0;
        for (std::size_t at = plot.find("\"mark\""); at != std::string::npos;
             at = plot.find("\"mark\"", at + 1))
            ++marks;
        EXPECT_EQ(marks, 2U);
    }
}

TEST(ComponentPlot, GrowsWithTheData) {
    EXPECT_THAT(componentPlot(samplesOf({{-1, 0, 0, 1}, {2, 0, 0, 1}})),
                testing::AllOf(HasSubstr(">−1</text>"), HasSubstr(">2</text>")));
    EXPECT_FALSE(isLogarithmic(ordinary));
    EXPECT_TRUE(isLogarithmic(huge));
    EXPECT_THAT(componentPlot(huge), HasSubstr(">10⁶</text>"));
}

TEST(ComponentPlot, LeavesWhatIsNoNumberOut) {
    std::string const plot = componentPlot(broken);
    EXPECT_THAT(plot, HasSubstr(R"(<path class="curve red" d="M106.67 173.33L320 173.33"/>)"));
    EXPECT_THAT(plot, HasSubstr(R"(<path class="curve blue" d="M533.33 173.33"/>)"));
    EXPECT_THAT(plot, Not(HasSubstr("nan")));
    EXPECT_THAT(plot, Not(HasSubstr("inf")));
}

TEST(LightnessPlot, RunsFromBlackToWhite) {
    std::string const plot = lightnessPlot(samplesOf({{0, 0, 0, 1}, {1, 1, 1, 1}}));
    EXPECT_THAT(plot, HasSubstr(R"(<path class="curve lightness" d="M160 94L480 4"/>)"));
}

TEST(LightnessPlot, TellsTheRangeOfTheMap) {
    Samples samples = ordinary;
    samples.domain.min = -1.0;
    samples.domain.max = 3.0;
    std::string const plot = lightnessPlot(samples);
    for (char const* const label :
         {R"(class="first" x="0")", ">−1</text>", ">0</text>", ">1</text>", ">2</text>",
          R"(class="last" x="640")", ">3</text>"})
        EXPECT_THAT(plot, HasSubstr(label));
}

}  // namespace
