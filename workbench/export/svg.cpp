/// A linear gradient as a picture that stands for itself.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

std::string stopText(Model const& model, Stop const& stop) {
    std::string const opacity =
        model.hasAlpha ? " stop-opacity=\"" + shortestText(double{stop.color[3]}) + "\"" : "";
    return "   <stop offset=\"" + shortestText(model.part(stop.value)) + "\" stop-color=\"" +
           hexOf(stop.color) + "\"" + opacity + "/>\n";
}

std::string write(Model const& model) {
    std::string about, stops;
    for (std::string const& line : aboutLines(model, 255))
        about += escapeXml(line) + "\n";
    for (Stop const& stop : stopsOf(model))
        stops += stopText(model, stop);
    std::string const name = plainName(model);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"512\" height=\"64\" viewBox=\"0 0 1 "
           "1\" preserveAspectRatio=\"none\">\n <title>" +
           name + "</title>\n <desc>" + about + "</desc>\n <defs>\n  <linearGradient id=\"" + name +
           "\">\n" + stops +
           "  </linearGradient>\n </defs>\n <rect width=\"1\" height=\"1\" "
           "fill=\"url(#" +
           name + ")\"/>\n</svg>\n";
}

}  // namespace

constinit Form const Svg{.name = "svg",
                         .program = "Inkscape",
                         .ending = ".svg",
                         .alpha = true,
                         .values = false,
                         .write = write};

}  // namespace workbench
