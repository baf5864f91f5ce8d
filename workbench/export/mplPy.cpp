/// A Python module for matplotlib, which registers the map and has its norm.
#include "workbench/export/doubles.hpp"
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

constexpr char Imports[] = R"(
import matplotlib
import numpy as np
from matplotlib.colors import BoundaryNorm, ListedColormap, Normalize

)";

constexpr char Class[] = R"(

class Steps(ListedColormap):
    """Colours with the places from 0 to 1 where they begin, to the last double.

    Floats are places, whole numbers are indices, as in any colour map.
    """

    def __init__(self, colors, name, starts):
        super().__init__(colors, name)
        self.starts = np.array(starts, dtype=float)

    def __call__(self, X, alpha=None, bytes=False):
        X = np.ma.asarray(X)
        if X.dtype.kind == "f":
            places = X.filled(np.nan)
            index = np.searchsorted(self.starts, places, side="right") - 1
            index = np.where(places > 1, self.N, index)
            X = np.ma.array(index, mask=np.isnan(places))
        return super().__call__(X, alpha, bytes)

    def reversed(self, name=None):
        starts = np.concatenate([[0.0], np.nextafter(1 - self.starts[:0:-1], 2)])
        turned = Steps(self.colors[::-1], name or self.name + "_r", starts)
        return turned.with_extremes(under=self(2.0), over=self(-1.0), bad=self(np.nan))

)";

/// A row of numbers or tuples, one to a line.
template <class Text>
std::string list(std::string const& name, Model const& model, Text const& text) {
    std::string rows = name + " = [\n";
    for (Piece const& piece : model.pieces)
        rows += "    " + text(piece) + ",\n";
    return rows + "]\n";
}

std::string tuple(Orlo::rgba_float_t const& color) {
    return "(" + floatText(color, 4, ", ") + ")";
}

std::string normOf(Model const& model) {
    std::string const max = shortestText(model.range.max);
    if (model.error > 0.0)
        return "norm = Normalize(" + shortestText(model.range.min) + ", " + max + ")\n";
    return "norm = BoundaryNorm(starts + [np.nextafter(" + max + ", np.inf)], len(colors))\n";
}

std::string write(Model const& model) {
    std::string const name = plainName(model);
    return comment(model, 0, "# ") + "\"\"\"" + name +
           " for matplotlib. After the import: imshow(data, cmap=\"telmbench." + name +
           "\", norm=norm).\n\nWith the norm, data are the values of the map's range; "
           "without it, matplotlib\nspans the map over the data.\n\"\"\"\n" +
           Imports +
           list("# Where each colour begins, as a value.\nstarts", model,
                [](Piece const& piece) { return shortestText(piece.from); }) +
           list("# The same from 0 to 1.\nplaces", model,
                [&](Piece const& piece) { return shortestText(model.part(piece.from)); }) +
           list("# Red, green, blue, alpha.\ncolors", model,
                [](Piece const& piece) { return tuple(piece.start); }) +
           Class + "\ncmap = Steps(colors, \"telmbench." + name + "\", places).with_extremes(\n" +
           "    under=" + tuple(model.below) + ",\n    over=" + tuple(model.above) +
           ",\n    bad=" + tuple(model.missing) + ",\n)\n" + normOf(model) +
           "matplotlib.colormaps.register(cmap, force=True)\n";
}

}  // namespace

constinit Form const MplPy{.name = "mpl-py",
                           .program = "matplotlib",
                           .ending = ".py",
                           .below = Outside::Colored,
                           .above = Outside::Colored,
                           .missing = true,
                           .alpha = true,
                           .exactEdges = true,
                           .steps = true,
                           .write = write};

}  // namespace workbench
