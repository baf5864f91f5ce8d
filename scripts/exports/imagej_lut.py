import json
import math
import pathlib
import subprocess

import job

MAP = '''
newImage("values", "32-bit black", {width}, 1, 1);
values = split(File.openAsString("{values}"), "\\n");
for (i = 0; i < {width}; i++) setPixel(i, 0, parseFloat(values[i]));
setMinAndMax(0, 1);
open("{file}");
setMinAndMax(0, 1);
run("RGB Color");
text = "";
for (i = 0; i < {width}; i++) text = text + getPixel(i, 0) + "\\n";
File.saveString(text, "{output}");
close();
'''
FOLDER = pathlib.Path.cwd()


def prepare():
    """One macro for all maps."""
    with open(job.arguments()[0]) as stream:
        tasks = json.load(stream)
    macro = "setBatchMode(true);\n"
    for name, task in tasks.items():
        values = [value if value != "nan" else "0" for value in task["values"]]
        (FOLDER / f"{name}.values").write_text("\n".join(values) + "\n")
        lut = FOLDER / f"{name}.lut"
        lut.write_bytes(pathlib.Path(task["file"]).read_bytes())
        macro += MAP.format(width=len(values), values=FOLDER / f"{name}.values", file=lut,
                            output=FOLDER / f"{name}.colors")
    macro += f'File.saveString(getVersion(), "{FOLDER / "version"}");\nrun("Quit");\n'
    (FOLDER / "macro.ijm").write_text(macro)


def sample(name, file, values):
    pixels = [int(line) & 0xffffff for line in (FOLDER / f"{name}.colors").read_text().split()]
    return [None if math.isnan(value) else [pixel >> 16, pixel >> 8 & 255, pixel & 255]
            for value, pixel in zip(values, pixels)]


prepare()
subprocess.run(["timeout", "-k", "5", "120", "xvfb-run", "-a", "java", "-cp",
                "/usr/share/java/ij.jar", "ij.ImageJ", "-batch", str(FOLDER / "macro.ijm")],
               check=True)
job.run("ImageJ " + (FOLDER / "version").read_text(), sample)
