"""GIMP, whose own language writes what it reads to a file."""
import os
import pathlib
import re
import shutil
import subprocess

VERSION = subprocess.run(["gimp", "--version"], capture_output=True, text=True).stdout.split()[-1]
RESOURCES = pathlib.Path(os.environ["HOME"]) / ".config/GIMP/2.10"


def install(file, kind):
    """Puts a file where GIMP looks for palettes or gradients."""
    folder = RESOURCES / kind
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.iterdir():
        old.unlink()
    shutil.copy(file, folder)


def run(script):
    """Runs a script that writes lines by (say LIST)."""
    output = pathlib.Path("gimp.txt").absolute()
    output.unlink(missing_ok=True)
    source = f'''(define port (open-output-file "{output}"))
(define (say what) (write what port) (newline port))
{script}
(close-output-port port)
(gimp-quit 0)'''
    pathlib.Path("script.scm").write_text(source)
    load = f'(load "{pathlib.Path("script.scm").absolute()}")'
    done = subprocess.run(["gimp", "-i", "--no-fonts", "-b", load, "-b", "(gimp-quit 0)"],
                          capture_output=True, text=True, timeout=300)
    if not output.exists() or "execution error" in done.stdout + done.stderr:
        raise SystemExit(done.stdout + done.stderr)
    return output.read_text().splitlines()


def numbers(text):
    return [float(part) for part in re.findall(r"-?\d+(?:\.\d*)?(?:e-?\d+)?", text)]
