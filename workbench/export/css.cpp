/// A linear gradient for web pages.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

std::string colorText(Model const& model, Orlo::rgba_float_t const& color) {
    if (!model.hasAlpha)
        return hexOf(color);
    return "rgba(" + byteText(color, 3, ", ") + ", " + shortestText(double{color[3]}) + ")";
}

/// A text that does not end the comment in which it stands.
std::string harmless(std::string text) {
    for (std::size_t at = 0; (at = text.find("*/", at)) != std::string::npos;)
        text.insert(at + 1, " ");
    return text;
}

std::string write(Model const& model) {
    std::string stops;
    for (Stop const& stop : stopsOf(model))
        stops += (stops.empty() ? "    " : ",\n    ") + colorText(model, stop.color) + " " +
                 shortestText(100 * model.part(stop.value)) + "%";
    return "/*\n" + harmless(comment(model, 255, "")) + "*/\n.telmbench-" + plainName(model) +
           " {\n  background-image: linear-gradient(to right,\n" + stops + ");\n}\n";
}

}  // namespace

constinit Form const Css{.name = "css",
                         .program = "web browsers",
                         .ending = ".css",
                         .alpha = true,
                         .values = false,
                         .write = write};

}  // namespace workbench
