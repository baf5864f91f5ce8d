import csv
import sys

import job
import pieces


def sample(name, file, values):
    with open(file, newline="") as stream:
        rows = [list(map(float, row)) for row in csv.reader(
            line for line in stream if line[0] not in "#f")]
    outside = {"below": rows[0][2:], "above": rows[-2][2:], "missing": rows[-1][2:]}
    inside = [(row[0], row[1], row[2:5], row[6:9]) for row in rows[1:-2]]
    return pieces.colors(inside, outside["below"], outside["above"], outside["missing"], values)


job.run("Python " + sys.version.split()[0], sample)
