import pathlib
import subprocess

import job
import numpy as np
import pictures
from PIL import Image


def sample(name, file, values):
    picture = pathlib.Path(name + ".png").absolute()
    if not picture.exists():
        raise SystemExit(f"{name}: Inkscape has drawn nothing")
    with Image.open(picture) as image:
        pixels = np.asarray(image.convert("RGB"))
    return pictures.colors(pixels[pixels.shape[0] // 2].tolist(), values)


def draw():
    """All pictures in one process."""
    import json
    with open(job.arguments()[0]) as stream:
        tasks = json.load(stream)
    actions = []
    for name, task in tasks.items():
        actions.append(f"file-open:{task['file']};export-type:png;"
                       f"export-filename:{pathlib.Path(name + '.png').absolute()};"
                       f"export-width:{pictures.WIDTH};export-height:32;export-do;file-close")
    return subprocess.run(["inkscape", "--shell"], input="\n".join(actions) + "\nquit\n",
                          capture_output=True, text=True, timeout=300)


version = subprocess.run(["inkscape", "--version"], capture_output=True, text=True).stdout.split()
draw()
job.run("Inkscape " + version[1], sample)
