import job
from qgis.core import Qgis, QgsApplication, QgsColorRampShader, QgsRasterRendererUtils

application = QgsApplication([], False)
application.initQgis()


def sample(name, file, values):
    done, items, kind, errors = QgsRasterRendererUtils.parseColorMapFile(file)
    if not done or errors:
        raise SystemExit(f"{name}: {errors}")
    shader = QgsColorRampShader(min(item.value for item in items), items[-1].value)
    shader.setColorRampType(kind)
    shader.setColorRampItemList(items)
    colors = []
    for value in values:
        drawn, *color = shader.shade(value)
        colors.append(color[:3] if drawn and color[3] > 0 else None)
    return colors


job.run("QGIS " + Qgis.QGIS_VERSION.split("-")[0], sample)
