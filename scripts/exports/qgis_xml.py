import math

import job
from qgis.core import Qgis, QgsApplication, QgsStyle

application = QgsApplication([], False)
application.initQgis()


def sample(name, file, values):
    style = QgsStyle()
    style.createMemoryDatabase()
    if not style.importXml(file):
        raise SystemExit(f"{name}: {style.errorString()}")
    ramp = style.colorRamp(name)
    if "Colormaps/" + name not in ramp.info()["about"]:
        raise SystemExit(f"{name}: the ramp does not say where it comes from")
    colors = []
    for value in values:
        color = ramp.color(value)
        colors.append(None if math.isnan(value) else [color.red(), color.green(), color.blue()])
    return colors


job.run("QGIS " + Qgis.QGIS_VERSION.split("-")[0], sample)
