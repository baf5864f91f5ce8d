/// A palette of GIMP, which Inkscape and Krita take too: a colour for each class,
/// or for each of many equal parts, and its values as its name.
#include "workbench/export/notation.hpp"
#include "workbench/export/table.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

constexpr int MaxColors = 256;

std::string row(Orlo::rgba_float_t const& color, double from, double to) {
    return byteText(color, 3, " ") + "\t" + shortestText(from) + " to " + shortestText(to) + "\n";
}

std::string write(Model const& model) {
    std::string text = "GIMP Palette\nName: telmbench " + plainName(model) + "\nColumns: 0\n" +
                       comment(model, 255, "# ");
    if (model.isClasses()) {
        for (Piece const& piece : model.pieces)
            text += row(piece.start, piece.from, piece.to);
        return text;
    }
    std::vector<Orlo::rgba_float_t> const colors = evenColors(model, MaxColors);
    for (std::size_t i = 0; i < colors.size(); ++i)
        text += row(colors[i], model.range.at(static_cast<double>(i), MaxColors),
                    model.range.at(static_cast<double>(i) + 1, MaxColors));
    return text;
}

}  // namespace

constinit Form const Gpl{.name = "gpl",
                         .program = "GIMP",
                         .ending = ".gpl",
                         .listsClasses = true,
                         .tableSize = MaxColors,
                         .write = write};

}  // namespace workbench
