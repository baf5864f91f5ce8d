#include "workbench/gallery/page.hpp"

#include <cmath>

#include "workbench/gallery/Deficiency.hpp"
#include "workbench/gallery/Span.hpp"
#include "workbench/gallery/html.hpp"
#include "workbench/gallery/plot.hpp"
#include "workbench/gallery/style.hpp"
#include "workbench/session/entries.hpp"

namespace workbench {

namespace {

constexpr char Introduction[] = R"(<p>Each map turns a number into a colour. Its ramp runs from
the lower to the upper end of its range, and everything below the ramp has the same
horizontal scale.</p>
<ul>
<li>The first curves are red, green and blue as the map gives them. Components beyond 0 to 1
are legal; they lie in the shaded part, and a screen shows 0 or 1 instead.</li>
<li>The lower curve is the lightness L* of what the screen shows. Equal steps of it look
equally large.</li>
<li>The three narrow ramps are what people with a full colour-vision deficiency see instead:
without the cones for long (protan), middle (deutan) or short waves (tritan); by Machado,
Oliveira and Fernandes, 2009.</li>
<li>Further ramps have parameters set. The texts beside them are what <code>--set</code>
takes.</li>
</ul>
)";

std::string image(std::string const& address, std::string const& text) {
    return "<img src=\"" + address + "\" alt=\"" + escapeHtml(text) + "\">";
}

std::string row(std::string const& style, std::string const& label, std::string const& content) {
    return element("div", "class=\"row " + style + "\"",
                   element("div", "class=\"label\"", label) +
                       element("div", "class=\"view\"", content)) +
           "\n";
}

std::string tagList(std::vector<std::string> const& tags) {
    std::string items;
    for (std::string const& tag : tags)
        items += element("li", "", escapeHtml(tag));
    return items.empty() ? items : element("ul", "class=\"tags\"", items) + "\n";
}

double rounded(double value, double stepsInOne) {
    return std::floor(value * stepsInOne + 0.5) / stepsInOne;
}

/// A span for people, its ends rounded.
std::string spanText(Span const& span, double stepsInOne) {
    std::string const min = readable(rounded(span.min, stepsInOne));
    std::string const max = readable(rounded(span.max, stepsInOne));
    return (min == max ? min : min + " to " + max) +
           (span.allFinite ? "" : ", and some that are no number");
}

std::string fact(std::string const& name, std::string const& text) {
    return element("div", "", element("dt", "", name) + element("dd", "", text));
}

std::string facts(Exhibit const& exhibit) {
    Samples const& samples = exhibit.samples;
    std::string list =
        fact("Range", readable(samples.domain.min) + " to " + readable(samples.domain.max));
    list += fact("Entries", std::to_string(exhibit.size));
    list += fact("Components", spanText(componentSpan(samples), 1000.0));
    list += fact("Lightness", spanText(lightnessSpan(samples), 10.0));
    if (!exhibit.source.empty())
        list += fact("Source", element("code", "", escapeHtml(exhibit.source)));
    return element("dl", "class=\"facts\"", list) + "\n";
}

std::string heading(Exhibit const& exhibit) {
    std::string const& text = exhibit.description;
    return element("h2", "", escapeHtml(nameIn(exhibit.key))) +
           element("p", "class=\"key\"", element("code", "", escapeHtml(exhibit.key))) +
           tagList(exhibit.tags) +
           (text.empty() ? element("p", "class=\"none\"", "It has no description.")
                         : element("p", "class=\"description\"", escapeHtml(text))) +
           "\n" + facts(exhibit);
}

std::string componentLabel(Samples const& samples) {
    std::string const legend = element("span", "class=\"key-red\"", "red") + " " +
                               element("span", "class=\"key-green\"", "green") + " " +
                               element("span", "class=\"key-blue\"", "blue");
    return "Components" + element("small", "class=\"legend\"", legend) +
           (isLogarithmic(samples) ? element("small", "", "linear from −1 to 1, logarithmic beyond")
                                   : "");
}

std::string plots(Samples const& samples) {
    return row("tall", componentLabel(samples), componentPlot(samples)) +
           row("tall", "Lightness" + element("small", "", "of what a screen shows"),
               lightnessPlot(samples));
}

std::string deficiencies(Samples const& samples, std::string const& name) {
    struct Kind {
        Deficiency deficiency;
        char const* name;
    };
    std::string rows;
    for (auto const& [deficiency, kind] : {Kind{Deficiency::Protan, "Protan"},
                                           {Deficiency::Deutan, "Deutan"},
                                           {Deficiency::Tritan, "Tritan"}}) {
        Image const ramp =
            rampOf(samples, 1, [missing = deficiency](Orlo::rgba_float_t const& color) {
                return colorOf(seenWith(missing, lightOf(color)));
            });
        rows += row("strip", kind, image(dataUri(ramp), std::string(kind) + " view of " + name));
    }
    return rows;
}

std::string variantRow(Exhibit const& exhibit, Variant const& variant) {
    std::string assignments;
    std::string description = exhibit.key + " with";
    for (std::string const& each : variant.preset.assignments) {
        assignments += element("code", "", escapeHtml(each));
        description += " " + each;
    }
    return row("variant", escapeHtml(variant.preset.caption) + element("small", "", assignments),
               image(dataUri(rampOf(variant.samples, 1)), description));
}

std::string orDash(std::string const& text) {
    return text.empty() ? "–" : escapeHtml(text);
}

std::string parameterRow(ParameterFacts const& parameter) {
    std::string cells = element("th", "scope=\"row\"", escapeHtml(parameter.name));
    cells += element("td", "", escapeHtml(parameter.type));
    cells += element("td", "", element("code", "", escapeHtml(parameter.defaultText)));
    for (std::string const& text :
         {std::to_string(parameter.expertLevel), parameter.min, parameter.max})
        cells += element("td", "class=\"number\"", orDash(text));
    return element("tr", "", cells) + "\n";
}

std::string parameterTable(std::vector<ParameterFacts> const& parameters) {
    if (parameters.empty())
        return "<p class=\"none\">It has no parameters.</p>\n";
    std::string rows;
    for (ParameterFacts const& each : parameters)
        rows += parameterRow(each);
    return "<div class=\"table\"><table>\n"
           "<thead><tr><th scope=\"col\">Parameter</th><th scope=\"col\">Type</th>"
           "<th scope=\"col\">Default</th><th scope=\"col\" class=\"number\">Level</th>"
           "<th scope=\"col\" class=\"number\">Min</th><th scope=\"col\" class=\"number\">Max</th>"
           "</tr></thead>\n<tbody>\n" +
           rows + "</tbody></table></div>\n";
}

/// The table of contents: each map by its name and its colours.
std::string contents(std::vector<Exhibit> const& exhibits, std::vector<std::string> const& words) {
    std::string items;
    for (std::size_t i = 0; i < exhibits.size(); ++i)
        items += element("li", "",
                         element("a", "href=\"#" + words[i] + "\"",
                                 image(pictureName(words[i]), "") +
                                     element("span", "", escapeHtml(nameIn(exhibits[i].key))))) +
                 "\n";
    return "<nav aria-label=\"All maps\"><ul>\n" + items + "</ul></nav>\n";
}

}  // namespace

std::string pictureName(std::string const& word) {
    return "ramp-" + word + ".png";
}

std::string section(Exhibit const& exhibit, std::string const& word) {
    std::string text = heading(exhibit);
    text += row("main", "Defaults", image(pictureName(word), "Ramp of " + exhibit.key));
    text += plots(exhibit.samples);
    text += deficiencies(exhibit.samples, exhibit.key);
    for (Variant const& variant : exhibit.variants)
        text += variantRow(exhibit, variant);
    text += parameterTable(exhibit.parameters);
    text += "<p class=\"up\"><a href=\"#top\">All maps</a></p>\n";
    return element("section", "id=\"" + word + "\" data-key=\"" + escapeHtml(exhibit.key) + "\"",
                   "\n" + text) +
           "\n";
}

std::string glass(Samples const& samples, std::string const& name) {
    return row("main", "Ramp", image(dataUri(rampOf(samples, 1)), "Ramp of " + name)) +
           plots(samples) + deficiencies(samples, name);
}

std::string page(std::vector<Exhibit> const& exhibits, std::vector<std::string> const& words,
                 std::string const& sections, std::string const& maker) {
    std::size_t const count = exhibits.size();
    std::string const title = std::to_string(count) + (count == 1 ? " colour map" : " colour maps");
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"color-scheme\" content=\"light dark\">\n"
           "<title>" +
           title + "</title>\n<style>\n" + Style +
           "</style>\n</head>\n<body>\n<header id=\"top\">\n" + element("h1", "", title) + "\n" +
           contents(exhibits, words) + "<details open><summary>How to read this page</summary>\n" +
           Introduction + "</details>\n</header>\n<main>\n" + sections + "</main>\n" +
           element("footer", "", "Made by " + escapeHtml(maker) + ".") + "\n</body>\n</html>\n";
}

}  // namespace workbench
