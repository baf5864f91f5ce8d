import math
import subprocess

import job


def grass(module, **options):
    words = [module, *(f"{key}={value}" for key, value in options.items() if key not in
                       ("text", "flags")), *(["-" + options["flags"]] if "flags" in options else [])]
    done = subprocess.run([*words, "--quiet", "--overwrite"], input=options.get("text"),
                          capture_output=True, text=True)
    if done.returncode != 0:
        raise SystemExit(f"{' '.join(words)}: {done.stderr}")
    return done.stdout


def sample(name, file, values):
    row = " ".join("*" if math.isnan(value) else repr(value) for value in values)
    header = f"north: 1\nsouth: 0\neast: {len(values)}\nwest: 0\nrows: 1\ncols: {len(values)}\n"
    grass("r.in.ascii", input="-", output="data", type="DCELL", text=header + row + "\n")
    grass("g.region", raster="data")
    grass("r.colors", map="data", rules=file)
    # A picture has the colour of cells without data too; white is what has none.
    grass("r.out.ppm", input="data", output="data.ppm")
    with open("data.ppm", "rb") as stream:
        parts = stream.read()[-3 * len(values):]
    colors = [list(parts[i:i + 3]) for i in range(0, len(parts), 3)]
    return [None if color == [255, 255, 255] and (value < 0 or value > 1) else color
            for value, color in zip(values, colors)]


version = grass("g.version", flags="g").split("version=")[1].split()[0]
job.run("GRASS " + version, sample)
