/// A palette of gnuplot, with its range.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

std::string write(Model const& model) {
    std::string stops;
    for (Stop const& stop : stopsOf(model))
        stops += (stops.empty() ? "  " : ", \\\n  ") + shortestText(stop.value) + " " +
                 floatText(stop.color, 3, " ");
    return comment(model, 0, "# ") +
           "set palette model RGB maxcolors 0\nset palette defined ( \\\n" + stops +
           ")\nset cbrange [" + shortestText(model.range.min) + ":" +
           shortestText(model.range.max) + "]\n";
}

}  // namespace

constinit Form const Gnuplot{
    .name = "gnuplot", .program = "gnuplot", .ending = ".gp", .exactEdges = true, .write = write};

}  // namespace workbench
