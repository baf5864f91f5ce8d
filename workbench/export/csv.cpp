/// Comma-separated values: a row for each piece, and for what lies outside.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

std::string row(std::string const& from, std::string const& to, Orlo::rgba_float_t const& start,
                Orlo::rgba_float_t const& end) {
    return from + "," + to + "," + floatText(start, 4, ",") + "," + floatText(end, 4, ",") + "\n";
}

std::string write(Model const& model) {
    std::string text = comment(model, 0, "# ") +
                       "from,to,red,green,blue,alpha,end red,end green,end blue,end alpha\n" +
                       row("-inf", shortestText(model.range.min), model.below, model.below);
    for (Piece const& piece : model.pieces)
        text += row(shortestText(piece.from), shortestText(piece.to), piece.start, piece.end);
    return text + row(shortestText(model.range.max), "inf", model.above, model.above) +
           row("nan", "nan", model.missing, model.missing);
}

}  // namespace

constinit Form const Csv{.name = "csv",
                         .program = "any program",
                         .ending = ".csv",
                         .below = Outside::Colored,
                         .above = Outside::Colored,
                         .missing = true,
                         .alpha = true,
                         .beyond = true,
                         .exactEdges = true,
                         .write = write};

}  // namespace workbench
