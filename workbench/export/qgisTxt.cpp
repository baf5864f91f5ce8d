/// A colour map file of QGIS: classes end at their entries, lines run between them.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

std::string row(std::string const& value, Orlo::rgba_float_t const& color) {
    return value + "," + byteText(color, 4, ",") + "," + value + "\n";
}

/// An entry holds for the values up to it that no earlier one holds for.
std::string classes(Model const& model) {
    std::string text = "INTERPOLATION:DISCRETE\n";
    for (Piece const& piece : model.pieces)
        text += row(&piece == &model.pieces.back() ? "inf" : shortestText(model.lastOf(piece)),
                    piece.start);
    return text;
}

std::string lines(Model const& model) {
    std::string text = "INTERPOLATION:INTERPOLATED\n";
    for (Stop const& stop : stopsOf(model))
        text += row(shortestText(stop.value), stop.color);
    return text;
}

std::string write(Model const& model) {
    return comment(model, 255, "# ") + (model.isClasses() ? classes(model) : lines(model));
}

}  // namespace

constinit Form const QgisTxt{.name = "qgis-txt",
                             .program = "QGIS",
                             .ending = ".txt",
                             .alpha = true,
                             .exactEdges = true,
                             .write = write};

}  // namespace workbench
