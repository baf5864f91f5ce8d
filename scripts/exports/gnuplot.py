import subprocess
import tempfile

import job


def text(value):
    return "NaN" if value != value else repr(value)


def sample(name, file, values):
    with tempfile.NamedTemporaryFile("w", suffix=".gp") as script:
        script.write(f"load '{file}'\nset terminal dumb\nset output '/dev/null'\n"
                     "plot [0:1] x palette\nset print '-'\n")
        for value in values:
            script.write(f'print sprintf("%06x", palette({text(value)}))\n')
        script.flush()
        done = subprocess.run(["gnuplot", script.name], capture_output=True, text=True)
    if done.returncode != 0 or done.stderr.strip():
        raise SystemExit(f"{name}: {done.stderr}")
    # What is no number is not drawn, whatever the function says.
    return [None if value != value else [int(line[i:i + 2], 16) for i in (0, 2, 4)]
            for value, line in zip(values, done.stdout.split())]


version = subprocess.run(["gnuplot", "--version"], capture_output=True, text=True).stdout.split()
job.run(f"gnuplot {version[1]}.{version[3]}", sample)
