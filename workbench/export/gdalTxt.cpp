/// The colour table of `gdaldem color-relief`: a line for each stop.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

std::string write(Model const& model) {
    std::size_t const components = model.hasAlpha ? 4 : 3;
    std::string text = comment(model, 255, "# ") + "# gdaldem color-relief" +
                       (model.hasAlpha ? " -alpha" : "") + " DATA THIS-FILE PICTURE\n";
    for (Stop const& stop : stopsOf(model))
        text += shortestText(stop.value) + " " + byteText(stop.color, components, " ") + "\n";
    return text + "nv " + byteText(model.missing, components, " ") + "\n";
}

}  // namespace

constinit Form const GdalTxt{.name = "gdal-txt",
                             .program = "GDAL",
                             .ending = ".txt",
                             .missing = true,
                             .alpha = true,
                             .write = write};

}  // namespace workbench
