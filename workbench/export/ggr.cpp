/// A gradient of GIMP: a segment for each piece.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

/// Left, middle and right end, two colours, and five zeros: a straight blend of
/// red, green and blue between fixed colours.
std::string segment(Model const& model, Piece const& piece) {
    double const left = model.part(piece.from), right = model.part(piece.to);
    return shortestText(left) + " " + shortestText(left + (right - left) / 2) + " " +
           shortestText(right) + " " + floatText(piece.start, 4, " ") + " " +
           floatText(piece.end, 4, " ") + " 0 0 0 0\n";
}

/// The form has no comments, so that the name says where it comes from.
std::string write(Model const& model) {
    std::string name, segments;
    for (std::string const& line : aboutLines(model, 0))
        name += (name.empty() ? "" : "; ") + line;
    for (Piece const& piece : model.pieces)
        segments += segment(model, piece);
    return "GIMP Gradient\nName: " + name + "\n" + std::to_string(model.pieces.size()) + "\n" +
           segments;
}

}  // namespace

constinit Form const Ggr{.name = "ggr",
                         .program = "GIMP",
                         .ending = ".ggr",
                         .alpha = true,
                         .minPart = 1e-9,
                         .values = false,
                         .write = write};

}  // namespace workbench
