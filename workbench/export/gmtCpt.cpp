/// GMT's colour palette table: a slice for each piece.
#include <cmath>

#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

/// A component from 0 to 255, with decimals where it needs them.
std::string level(float component) {
    char text[32];
    std::snprintf(text, sizeof text, "%.8g", 255.0 * double{component});
    return text;
}

/// GDAL reads this form as long as blanks divide the numbers and no colour is
/// transparent. GMT counts transparency in percent.
std::string colorText(Orlo::rgba_float_t const& color) {
    std::string const divider = color[3] == 1.0F ? "\t" : "/";
    std::string text = level(color[0]) + divider + level(color[1]) + divider + level(color[2]);
    if (color[3] != 1.0F)
        text += "@" + shortestText(std::round(1e4 * (1.0 - double{color[3]})) / 100.0);
    return text;
}

std::string write(Model const& model) {
    std::string text = comment(model, 0, "# ") + "# COLOR_MODEL = RGB\n";
    for (Piece const& piece : model.pieces)
        text += shortestText(piece.from) + "\t" + colorText(piece.start) + "\t" +
                shortestText(piece.to) + "\t" + colorText(piece.end) + "\n";
    return text + "B\t" + colorText(model.below) + "\nF\t" + colorText(model.above) + "\nN\t" +
           colorText(model.missing) + "\n";
}

}  // namespace

constinit Form const GmtCpt{.name = "gmt-cpt",
                            .program = "GMT",
                            .ending = ".cpt",
                            .below = Outside::Colored,
                            .above = Outside::Colored,
                            .missing = true,
                            .alpha = true,
                            .exactEdges = true,
                            .minPart = 1e-300,
                            .write = write};

}  // namespace workbench
