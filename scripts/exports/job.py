"""What check-exports hands to a sampler, and gets back."""
import json
import os
import sys


def arguments():
    """The two files of the call: behind "--" where a program has words of its own."""
    if "CHECK_EXPORTS_JOB" in os.environ:
        return os.environ["CHECK_EXPORTS_JOB"], os.environ["CHECK_EXPORTS_RESULT"]
    return sys.argv[-2], sys.argv[-1]


def run(version, sample):
    """Samples every map: sample(name, file, values) gives a colour for each value:
    red, green and blue from 0 to 255, None for what is not drawn, or "untried"."""
    job, result = arguments()
    with open(job) as stream:
        maps = json.load(stream)
    colors = {}
    for name, task in maps.items():
        values = [float(value) for value in task["values"]]
        colors[name] = [color if color is None or isinstance(color, str) else [float(part) for part in color]
                        for color in sample(name, task["file"], values)]
    with open(result, "w") as stream:
        json.dump({"version": version, "colors": colors}, stream)
