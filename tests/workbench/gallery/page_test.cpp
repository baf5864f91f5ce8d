#include "workbench/gallery/page.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/workbench/picture/sampleMaps.hpp"
#include "workbench/gallery/html.hpp"

namespace {

using namespace workbench;
using namespace tests;
using testing::HasSubstr;
using testing::Not;

Exhibit exhibit() {
    return {.key = "Colormaps/Red",
            .description = "Red < \"green\" & 'blue'",
            .source = "prism/Red",
            .tags = {"General", "<Tag>"},
            .size = 7,
            .parameters = {{"a <b>", "double", "\"0.5\"", 2, "-1", ""},
                           {"flags", "FlagList", "-x -y", 0, "", ""}},
            .samples = samplesOf({{-1, 0, 0, 1}, {0.25, 0, 2, 1}}),
            .variants = {{{"More & more", {"a <b>=1", "flags=x"}}, samplesOf({{1, 0, 0, 1}})}}};
}

TEST(Section, ShowsWhatTheCatalogueSays) {
    std::string const html = section(exhibit(), "Red");
    for (char const* const part :
         {R"(<section id="Red" data-key="Colormaps/Red">)", "<h2>Red</h2>",
          "<code>Colormaps/Red</code>", "Red &lt; &quot;green&quot; &amp; &#39;blue&#39;</p>",
          "<li>General</li><li>&lt;Tag&gt;</li>", "<code>prism/Red</code>",
          R"(<img src="ramp-Red.png" alt="Ramp of Colormaps/Red">)"})
        EXPECT_THAT(html, HasSubstr(part));
}

TEST(Section, TellsTheNumbersOfTheMap) {
    std::string const html = section(exhibit(), "Red");
    for (char const* const part :
         {"<dt>Range</dt><dd>0 to 1</dd>", "<dt>Entries</dt><dd>7</dd>",
          "<dt>Components</dt><dd>−1 to 2</dd>", "<dt>Lightness</dt><dd>0 to 34.6</dd>"})
        EXPECT_THAT(html, HasSubstr(part));
}

TEST(Section, HasATableOfParameters) {
    std::string const html = section(exhibit(), "Red");
    EXPECT_THAT(html, HasSubstr(R"(<th scope="row">a &lt;b&gt;</th><td>double</td>)"
                                R"(<td><code>&quot;0.5&quot;</code></td><td class="number">2</td>)"
                                R"(<td class="number">-1</td><td class="number">–</td>)"));
    EXPECT_THAT(html, HasSubstr(R"(<th scope="row">flags</th><td>FlagList</td>)"
                                R"(<td><code>-x -y</code></td><td class="number">0</td>)"));
}

TEST(Section, SaysWhichSettingEachRampHas) {
    std::string const html = section(exhibit(), "Red");
    EXPECT_THAT(html, HasSubstr("More &amp; more<small><code>a &lt;b&gt;=1</code>"
                                "<code>flags=x</code></small>"));
    EXPECT_THAT(html, HasSubstr(R"(alt="Colormaps/Red with a &lt;b&gt;=1 flags=x")"));
}

/// Of the two columns the first is black; the second is 0.25 red with full blue.
TEST(Section, ShowsTheThreeDeficiencies) {
    std::string const html = section(exhibit(), "Red");
    for (char const* const name : {"Protan", "Deutan", "Tritan"})
        EXPECT_THAT(html, HasSubstr(std::string(" alt=\"") + name + " view of Colormaps/Red\">"));
    Image protan(2, 1);
    protan.at(1, 0) = {0, 91, 255, 255};
    EXPECT_THAT(html, HasSubstr(dataUri(protan)));
}

TEST(Section, SaysWhatThereIsNot) {
    Exhibit bare = exhibit();
    bare.description = bare.source = "";
    bare.tags.clear();
    bare.parameters.clear();
    bare.variants.clear();
    bare.samples = samplesOf({{NaN, NaN, NaN, NaN}, {1, 1, 1, 1}});
    std::string const html = section(bare, "Red");
    for (char const* const part : {"It has no description.", "It has no parameters.",
                                   "<dd>1, and some that are no number</dd>"})
        EXPECT_THAT(html, HasSubstr(part));
    for (char const* const part : {"<table>", "class=\"tags\"", "<dt>Source</dt>", "variant"})
        EXPECT_THAT(html, Not(HasSubstr(part)));
}

TEST(Section, SaysWhenTheScaleIsNotLinear) {
    Exhibit large = exhibit();
    EXPECT_THAT(section(large, "Red"), Not(HasSubstr("logarithmic")));
    large.samples = samplesOf({{1e6F, 0, 0, 1}});
    EXPECT_THAT(section(large, "Red"), HasSubstr("linear from −1 to 1, logarithmic beyond"));
}

TEST(Page, LeadsToEverySection) {
    std::vector<Exhibit> const exhibits{exhibit(), exhibit()};
    std::string const html = page(exhibits, {"Red", "Red-2"}, "<p>sections</p>", "some <program>");
    for (char const* const part :
         {"<!DOCTYPE html>", "<meta charset=\"utf-8\">", "<h1>2 colour maps</h1>",
          R"(<a href="#Red"><img src="ramp-Red.png" alt=""><span>Red</span></a>)",
          R"(<a href="#Red-2"><img src="ramp-Red-2.png" alt=""><span>Red</span></a>)",
          "prefers-color-scheme: dark", "<p>sections</p>", "Made by some &lt;program&gt;."})
        EXPECT_THAT(html, HasSubstr(part));
    EXPECT_THAT(page({exhibit()}, {"Red"}, "", ""), HasSubstr("<title>1 colour map</title>"));
}

}  // namespace
