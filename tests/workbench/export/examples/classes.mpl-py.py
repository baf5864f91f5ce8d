# Colour map Colormaps/HypoxiaLegend, by telmbench VERSION
# A colormap specifically useful for Bathymetric and topographic displays, providing bluish colors for low values and green/yellow/brownish tones for large values.
# Values from 0 to 7: 7 pieces of one colour each, exactly as in the map
# Made by: telmbench export Colormaps/HypoxiaLegend --format mpl-py --range 0,7
"""HypoxiaLegend for matplotlib. After the import: imshow(data, cmap="telmbench.HypoxiaLegend", norm=norm).

With the norm, data are the values of the map's range; without it, matplotlib
spans the map over the data.
"""

import matplotlib
import numpy as np
from matplotlib.colors import BoundaryNorm, ListedColormap, Normalize

# Where each colour begins, as a value.
starts = [
    0,
    0.49999999999999994,
    1.5,
    2.5,
    3.5,
    4.5,
    5.5,
]
# The same from 0 to 1.
places = [
    0,
    0.07142857142857142,
    0.21428571428571427,
    0.35714285714285715,
    0.5,
    0.6428571428571429,
    0.7857142857142857,
]
# Red, green, blue, alpha.
colors = [
    (0.20000000298023224, 0.5, 0, 1),
    (0, 1, 0, 1),
    (1, 1, 0, 1),
    (0.8999999761581421, 0.5, 0, 1),
    (0.6000000238418579, 0.15000000596046448, 0.10000000149011612, 1),
    (0.800000011920929, 0.800000011920929, 0.8999999761581421, 1),
    (0.5, 0, 0.5, 1),
]


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


cmap = Steps(colors, "telmbench.HypoxiaLegend", places).with_extremes(
    under=(0.20000000298023224, 0.5, 0, 1),
    over=(0.5, 0, 0.5, 1),
    bad=(0.20000000298023224, 0.5, 0, 1),
)
norm = BoundaryNorm(starts + [np.nextafter(7, np.inf)], len(colors))
matplotlib.colormaps.register(cmap, force=True)
