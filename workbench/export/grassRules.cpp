/// Rules for GRASS's `r.colors`: a line for each stop.
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

std::string write(Model const& model) {
    std::string text = comment(model, 255, "# ") + "# r.colors map=DATA rules=THIS-FILE\n";
    for (Stop const& stop : stopsOf(model))
        text += shortestText(stop.value) + " " + byteText(stop.color, 3, ":") + "\n";
    return text + "nv " + byteText(model.missing, 3, ":") + "\n";
}

}  // namespace

constinit Form const GrassRules{.name = "grass-rules",
                                .program = "GRASS",
                                .ending = ".txt",
                                .below = Outside::Undrawn,
                                .above = Outside::Undrawn,
                                .missing = true,
                                .write = write};

}  // namespace workbench
