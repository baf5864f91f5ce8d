import re
import subprocess

import job


def sample(name, file, values):
    points = "".join(f"{i} 0 {value!r}\n" for i, value in enumerate(values))
    call = ["gmt", "psxy", f"-C{file}", "-Sc0.1c", f"-R-1/{len(values)}/-1/1", "-JX10c/1c"]
    page = subprocess.run(call, input=points, capture_output=True, text=True)
    if page.returncode != 0 or page.stderr.strip():
        raise SystemExit(f"{name}: {page.stderr}")
    # Three digits of a component are written, and a colour only where it changes.
    color, colors = [0, 0, 0], []
    for line in page.stdout.splitlines():
        fill = re.match(r"\{([\d.e-]+) ([\d.e-]+) ([\d.e-]+) C\} FS", line)
        grey = re.match(r"\{([\d.e-]+) A\} FS", line)
        if fill:
            color = [255 * float(part) for part in fill.groups()]
        elif grey:
            color = 3 * [255 * float(grey.group(1))]
        elif line.endswith(" Sc"):
            colors.append(color)
    return colors


version = subprocess.run(["gmt", "--version"], capture_output=True, text=True).stdout.strip()
job.run("GMT " + version, sample)
