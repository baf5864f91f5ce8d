/// A colour ramp in a style file of QGIS.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

std::string prop(std::string const& key, std::string const& value) {
    return "   <prop k=\"" + escapeXml(key) + "\" v=\"" + escapeXml(value) + "\"/>\n";
}

std::string write(Model const& model) {
    std::vector<Stop> const stops = stopsOf(model);
    std::string inner;
    for (std::size_t i = 1; i + 1 < stops.size(); ++i)
        inner += (inner.empty() ? "" : ":") + shortestText(model.part(stops[i].value)) + ";" +
                 byteText(stops[i].color, 4, ",");
    std::string about;
    for (std::string const& line : aboutLines(model, 255))
        about += (about.empty() ? "" : "; ") + line;
    return "<!DOCTYPE qgis_style>\n<qgis_style version=\"2\">\n <symbols/>\n <colorramps>\n"
           "  <colorramp type=\"gradient\" name=\"" +
           plainName(model) + "\">\n" + prop("color1", byteText(stops.front().color, 4, ",")) +
           prop("color2", byteText(stops.back().color, 4, ",")) + prop("discrete", "0") +
           prop("rampType", "gradient") + prop("stops", inner) + prop("info_about", about) +
           "  </colorramp>\n </colorramps>\n</qgis_style>\n";
}

}  // namespace

constinit Form const QgisXml{.name = "qgis-xml",
                             .program = "QGIS",
                             .ending = ".xml",
                             .alpha = true,
                             .exactEdges = true,
                             .values = false,
                             .write = write};

}  // namespace workbench
