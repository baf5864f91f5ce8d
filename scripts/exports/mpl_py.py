import job
import matplotlib
import numpy as np


def sample(name, file, values):
    module = {}
    with open(file) as stream:
        exec(compile(stream.read(), file, "exec"), module)
    places = np.array(values)
    cmap = matplotlib.colormaps["telmbench." + name]
    colors = cmap(places)
    # Data through the norm have the same colours, as a plot masks what is no number.
    normed = cmap(module["norm"](np.ma.masked_invalid(places)))
    if not np.array_equal(colors, normed):
        raise SystemExit(f"{name}: the norm leads to other colours")
    if [cmap(value) for value in values[:3]] != [tuple(color) for color in colors[:3]]:
        raise SystemExit(f"{name}: a number has another colour than an array")
    return 255 * colors[:, :3]


job.run("matplotlib " + matplotlib.__version__, sample)
