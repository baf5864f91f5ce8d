import json
import sys

import job
import pieces


def sample(name, file, values):
    with open(file) as stream:
        data = json.load(stream)
    inside = [(each["from"], each["to"], each["start"], each["end"]) for each in data["pieces"]]
    return pieces.colors(inside, data["below"], data["above"], data["missing"], values)


job.run("Python " + sys.version.split()[0], sample)
